// SPDX-License-Identifier: GPL-2.0-or-later
// Checks requests, and turns what the reader says into answers within the protocol's limits.
#include "pages/PageServer.h"

#include "platform/FileDescriptor.h"

#include <QElapsedTimer>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace bv {

namespace {

// The search for the largest page ends after so many pages or so long.
constexpr int kMeasuredPages = 2000;
constexpr int kMeasuringMilliseconds = 150;

bool readRequest(int input, PageRequest *request)
{
    std::array<char, sizeof(PageRequest)> bytes = {};
    size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = readSome(input, std::span(bytes).subspan(filled));
        if (got <= 0)
            return false;
        filled += static_cast<size_t>(got);
    }
    std::memcpy(request, bytes.data(), bytes.size());
    return request->order == kPageOrder;
}

std::string_view bytesOf(const void *data, size_t size)
{
    return {static_cast<const char *>(data), size};
}

// 0 for a length that is none.
uint32_t units(double length)
{
    const double scaled = length * kUnitsPerPoint;
    return scaled >= 1 && scaled <= kLongestSide ? static_cast<uint32_t>(std::lround(scaled)) : 0;
}

double points(uint32_t length)
{
    return static_cast<double>(std::min(length, kLongestSide)) / kUnitsPerPoint;
}

// By the weights that printing programs use. Qt's own conversion goes by lightness, which makes pure colors lighter.
// Null when there is no memory for it.
QImage inGray(const QImage &picture)
{
    QImage gray(picture.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < gray.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        std::transform(from, from + picture.width(), gray.scanLine(y), [](QRgb color) { return qGray(color); });
    }
    return gray;
}

} // namespace

PageServer::PageServer(std::unique_ptr<PageReader> reader, int input, int output)
    : m_reader(std::move(reader)), m_input(input), m_output(output)
{}

void PageServer::serve()
{
    PageRequest request;
    while (readRequest(m_input, &request)) {
        QImage picture;
        const PageAnswer said = answer(request, &picture);
        if (!write(said, picture))
            return;
    }
}

PageAnswer PageServer::answer(const PageRequest &request, QImage *picture)
{
    PageAnswer answer;
    answer.task = request.task;
    answer.page = request.page;
    if (!m_reader)
        return answer;
    answer.content = m_reader->content();
    if (request.task == PageTask::Layout) {
        layOut(request, answer);
    } else if (m_laidOut && request.page < m_reader->pageCount()) {
        if (request.task == PageTask::Measure)
            measure(answer);
        else if (request.task == PageTask::Render)
            render(request, answer, picture);
    }
    return answer;
}

void PageServer::layOut(const PageRequest &request, PageAnswer &answer)
{
    const Sheet sheet = {{points(request.width), points(request.height)},
                         {points(request.left), points(request.top), points(request.right), points(request.bottom)}};
    m_laidOut = false;
    answer.verdict = m_reader->layOut(sheet);
    if (answer.verdict != PageVerdict::Done)
        return;
    const int64_t pages = m_reader->pageCount();
    if (pages < 1 || pages > kMostPages) {
        answer.verdict = PageVerdict::Unreadable;
        return;
    }
    m_laidOut = true;
    answer.pages = static_cast<uint32_t>(pages);
    QElapsedTimer timer;
    timer.start();
    for (int page = 0; page < std::min<int64_t>(pages, kMeasuredPages); ++page) {
        const QSizeF size = m_reader->pageSize(page);
        answer.width = std::max(answer.width, units(std::min(size.width(), size.height())));
        answer.height = std::max(answer.height, units(std::max(size.width(), size.height())));
        if (timer.elapsed() > kMeasuringMilliseconds || m_reader->content() != PageContent::Pdf)
            break;
    }
}

void PageServer::measure(PageAnswer &answer)
{
    const QSizeF size = m_reader->pageSize(static_cast<int>(answer.page));
    answer.width = units(size.width());
    answer.height = units(size.height());
    if (answer.width && answer.height)
        answer.verdict = PageVerdict::Done;
}

void PageServer::render(const PageRequest &request, PageAnswer &answer, QImage *picture)
{
    if (!request.width || !request.height || uint64_t{request.width} * request.height > kMostPixels)
        return;
    const QSize pixels(static_cast<int>(request.width), static_cast<int>(request.height));
    QImage drawn = m_reader->render(static_cast<int>(request.page), pixels);
    if (drawn.size() != pixels)
        return;
    *picture = drawn.convertToFormat(QImage::Format_RGB32);
    if (request.gray)
        *picture = inGray(*picture);
    if (picture->isNull())
        return;
    answer.verdict = PageVerdict::Done;
    answer.width = request.width;
    answer.height = request.height;
    answer.bytes = pictureBytes(request.width, request.height, request.gray);
}

bool PageServer::write(const PageAnswer &answer, const QImage &picture)
{
    if (!writeAll(m_output, bytesOf(&answer, sizeof answer)))
        return false;
    if (picture.isNull())
        return true;
    const size_t row = answer.bytes / answer.height;
    for (int y = 0; y < picture.height(); ++y) {
        if (!writeAll(m_output, bytesOf(picture.constScanLine(y), row)))
            return false;
    }
    return true;
}

} // namespace bv
