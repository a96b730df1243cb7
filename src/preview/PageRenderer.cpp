// SPDX-License-Identifier: GPL-2.0-or-later
// One request is under way at a time: first the layout, then for each page its size and its picture.
#include "preview/PageRenderer.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"

#include <QFile>
#include <cmath>
#include <cstring>

namespace bv {

namespace {

// A page under way is let go for another one only if it has taken so long already, and longer than opening the document
// anew takes.
constexpr int kYieldMilliseconds = 200;
// So many bytes are read before the event loop goes on.
constexpr size_t kBytesAtOnce = size_t{4} << 20;

uint32_t units(double points)
{
    return static_cast<uint32_t>(std::lround(std::max(points, 0.0) * kUnitsPerPoint));
}

QSizeF inPoints(const PageAnswer &answer)
{
    return QSizeF(answer.width, answer.height) / kUnitsPerPoint;
}

PageRequest layoutRequest(const Sheet &sheet)
{
    PageRequest request;
    request.task = PageTask::Layout;
    request.width = units(sheet.size.width());
    request.height = units(sheet.size.height());
    request.left = units(sheet.borders.left());
    request.top = units(sheet.borders.top());
    request.right = units(sheet.borders.right());
    request.bottom = units(sheet.borders.bottom());
    return request;
}

// The pixels of the page, so that its sheet fits the room.
QSize pixelsOf(const PagePlace &place, QSize room)
{
    const double scale = std::min(room.width() / place.sheet.width(), room.height() / place.sheet.height());
    const QSizeF exact = place.page.size() * scale;
    QSize pixels(std::max(1, qRound(exact.width())), std::max(1, qRound(exact.height())));
    const double surplus = double(pixels.width()) * pixels.height() / kMostPixels;
    if (surplus > 1)
        pixels = (pixels / std::sqrt(surplus)).expandedTo({1, 1});
    return double(pixels.width()) * pixels.height() > kMostPixels ? QSize(1, 1) : pixels;
}

} // namespace

PageRenderer::PageRenderer(QString document, const Sheet &sheet, std::string program)
    : PageRenderer(std::move(document), sheet, std::move(program), Limits())
{}

PageRenderer::PageRenderer(QString document, const Sheet &sheet, std::string program, Limits limits)
    : m_document(std::move(document)), m_sheet(sheet), m_program(std::move(program)), m_limits(limits)
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { lose(NoPage::TooLong); });
}

PageRenderer::~PageRenderer()
{
    stopWorker();
}

void PageRenderer::open()
{
    if (!m_request)
        proceed();
}

void PageRenderer::draw(const PageWish &wish)
{
    if (m_failure != NoPage::None)
        return;
    if (m_wish == wish) {
        m_next.reset();
        return;
    }
    m_next = wish;
    if (!m_request) {
        proceed();
    } else if (m_wish && m_asked.hasExpired(kYieldMilliseconds + 2 * m_openTime)) {
        m_wish.reset();
        stopWorker();
        proceed();
    }
}

void PageRenderer::drawAhead(const PageWish &wish)
{
    if (m_request || m_next || m_failure != NoPage::None)
        return;
    m_next = wish;
    proceed();
}

void PageRenderer::stop()
{
    stopWorker();
    m_wish.reset();
    m_next.reset();
}

// Sends the next request.
void PageRenderer::proceed()
{
    if (m_failure != NoPage::None || m_request)
        return;
    if (!ensureWorker()) {
        fail(NoPage::Broken);
        return;
    }
    if (!m_laidOut) {
        ask(layoutRequest(m_sheet), m_limits.document);
        return;
    }
    if (!m_wish)
        m_wish = std::exchange(m_next, std::nullopt);
    if (!m_wish) {
        emit idle();
        return;
    }
    if (m_wish->page < 1 || m_wish->page > m_pages || m_wish->room.isEmpty() || m_lost.contains(m_wish->page)) {
        giveUpPage(NoPage::Broken);
        return;
    }
    PageRequest request;
    request.task = PageTask::Measure;
    request.page = static_cast<uint32_t>(m_wish->page - 1);
    ask(request, m_limits.page);
}

bool PageRenderer::ensureWorker()
{
    if (m_worker.running())
        return true;
    m_laidOut = m_useful = false;
    if (!m_worker.start(m_program, QFile::encodeName(m_document).toStdString()))
        return false;
    m_notifier = std::make_unique<QSocketNotifier>(m_worker.answers(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &PageRenderer::readAnswer);
    return true;
}

void PageRenderer::ask(PageRequest request, int milliseconds)
{
    m_request = request;
    m_filled = 0;
    m_bytes.clear();
    m_deadline.start(milliseconds);
    m_asked.start();
    // A process that is gone shows at its end of the other pipe.
    m_worker.send(request);
}

void PageRenderer::readAnswer()
{
    size_t read = 0;
    while (read < kBytesAtOnce) {
        const bool header = m_bytes.isEmpty();
        char *to = header ? reinterpret_cast<char *>(&m_answer) : m_bytes.data();
        const size_t whole = header ? sizeof m_answer : m_answer.bytes;
        const ssize_t got = m_request ? readSome(m_worker.answers(), {to + m_filled, whole - m_filled}) : 0;
        if (got < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            return;
        if (got <= 0) {
            lose(NoPage::Broken);
            return;
        }
        read += static_cast<size_t>(got);
        m_filled += static_cast<size_t>(got);
        if (m_filled < whole)
            continue;
        if (!header)
            takePicture();
        else
            take(m_answer);
        // What follows an answer is read in the next turn: a signal may have changed everything.
        if (!header || m_bytes.isEmpty())
            return;
    }
}

void PageRenderer::take(const PageAnswer &answer)
{
    if (!plausible(answer, *m_request)) {
        lose(NoPage::Broken);
        return;
    }
    if (answer.task == PageTask::Layout) {
        takeLayout(answer);
    } else if (answer.verdict != PageVerdict::Done) {
        m_lost.insert(m_wish->page);
        giveUpPage(NoPage::Broken);
    } else if (answer.task == PageTask::Measure) {
        takeMeasure(answer);
    } else {
        m_bytes.resize(static_cast<qsizetype>(answer.bytes));
        m_filled = 0;
    }
}

void PageRenderer::takeLayout(const PageAnswer &answer)
{
    if (answer.verdict != PageVerdict::Done) {
        fail(answer.content == PageContent::Unknown  ? NoPage::Unshown
             : answer.verdict == PageVerdict::Locked ? NoPage::Locked
                                                     : NoPage::Broken);
        return;
    }
    m_laidOut = true;
    m_openTime = m_asked.elapsed();
    const bool first = !isOpen();
    m_content = answer.content;
    m_pages = static_cast<int>(answer.pages);
    m_largest = inPoints(answer);
    m_request.reset();
    m_deadline.stop();
    if (first)
        emit opened();
    proceed();
}

void PageRenderer::takeMeasure(const PageAnswer &answer)
{
    m_place = placePage(m_sheet, m_content, inPoints(answer), m_largest);
    const QSize pixels = pixelsOf(m_place, m_wish->room);
    PageRequest request;
    request.task = PageTask::Render;
    request.page = answer.page;
    request.width = static_cast<uint32_t>(pixels.width());
    request.height = static_cast<uint32_t>(pixels.height());
    request.gray = m_wish->gray ? 1 : 0;
    ask(request, m_limits.page);
}

void PageRenderer::takePicture()
{
    m_useful = true;
    const auto width = static_cast<int>(m_answer.width);
    const auto height = static_cast<int>(m_answer.height);
    // The rows came without gaps. The copy has them where QImage wants them.
    const QImage picture(reinterpret_cast<const uchar *>(m_bytes.constData()), width, height, m_bytes.size() / height,
                         m_request->gray ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
    const DrawnPage page = {m_place, picture.copy()};
    m_bytes.clear();
    const PageWish wish = *m_wish;
    finish();
    emit drawn(wish, page);
    proceed();
}

void PageRenderer::lose(NoPage why)
{
    diagnosticLine(formatLog("preview: no answer for %@", {m_document.toStdString()}));
    const bool late = why == NoPage::TooLong;
    const bool layout = m_request && m_request->task == PageTask::Layout;
    const bool useful = std::exchange(m_useful, false);
    stopWorker();
    if (layout) {
        fail(why);
    } else if (m_wish && useful && !late) {
        // The process may have ended of all that it has drawn before. A fresh one tries once more.
        proceed();
    } else if (m_wish) {
        m_lost.insert(m_wish->page);
        giveUpPage(why);
    }
}

void PageRenderer::stopWorker()
{
    m_deadline.stop();
    if (m_notifier) {
        m_notifier->setEnabled(false);
        // This may be its own signal.
        m_notifier.release()->deleteLater();
    }
    m_worker.end();
    m_request.reset();
    m_bytes.clear();
    m_laidOut = false;
}

void PageRenderer::fail(NoPage why)
{
    stopWorker();
    m_wish.reset();
    m_next.reset();
    m_failure = why;
    emit failed(why);
}

void PageRenderer::giveUpPage(NoPage why)
{
    const PageWish wish = *m_wish;
    finish();
    emit notDrawn(wish, why);
    proceed();
}

void PageRenderer::finish()
{
    m_deadline.stop();
    m_request.reset();
    m_wish.reset();
}

} // namespace bv
