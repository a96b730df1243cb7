// SPDX-License-Identifier: GPL-2.0-or-later
// bvpages from outside, through its pipes: what it answers for good documents, for hostile ones, and what it may do.
#include "SampleDocuments.h"
#include "pages/DocumentKind.h"
#include "pages/PageCount.h"
#include "pages/PageWorker.h"
#include "pages/TextFlow.h"

#include <QColor>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QThread>
#include <cerrno>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace bv;
using bvtest::pdfWithPages;

namespace {

constexpr int kPatience = 20'000; // milliseconds; more than a page takes on a busy machine
constexpr int kImpatience = 400;

constexpr QSize kA4(595, 842);

class Pages : public testing::Test
{
protected:
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QString save(const QString &name, QSize size, const QColor &color)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(m_folder.filePath(name)));
        return m_folder.filePath(name);
    }
    bool start(const QString &path) { return m_worker.start(pagesProgram(), path.toStdString()); }
    // Nothing when the worker gives no answer that makes sense.
    std::optional<PageAnswer> ask(const PageRequest &request)
    {
        if (!m_worker.send(request))
            return std::nullopt;
        const std::optional<PageAnswer> answer = m_worker.waitForAnswer(m_patience);
        return answer && plausible(*answer, request) ? answer : std::nullopt;
    }
    std::optional<PageAnswer> layOut(QSize sheet = kA4)
    {
        PageRequest request;
        request.width = uint32_t(sheet.width()) * kUnitsPerPoint;
        request.height = uint32_t(sheet.height()) * kUnitsPerPoint;
        return ask(request);
    }
    std::optional<PageAnswer> measure(uint32_t page)
    {
        PageRequest request;
        request.task = PageTask::Measure;
        request.page = page;
        return ask(request);
    }
    // Null when there is none.
    QImage render(uint32_t page, QSize pixels, bool gray = false)
    {
        PageRequest request;
        request.task = PageTask::Render;
        request.page = page;
        request.width = uint32_t(pixels.width());
        request.height = uint32_t(pixels.height());
        request.gray = gray;
        const std::optional<PageAnswer> answer = ask(request);
        if (!answer || answer->verdict != PageVerdict::Done)
            return {};
        std::string bytes;
        while (bytes.size() < answer->bytes) {
            pollfd waited = {m_worker.answers(), POLLIN, 0};
            poll(&waited, 1, kPatience);
            std::array<char, 65536> some = {};
            const ssize_t got = readSome(m_worker.answers(), some);
            if (got <= 0)
                return {};
            bytes.append(some.data(), size_t(got));
        }
        return QImage(reinterpret_cast<const uchar *>(bytes.data()), pixels.width(), pixels.height(),
                      qsizetype(pixels.width()) * (gray ? 1 : 4),
                      gray ? QImage::Format_Grayscale8 : QImage::Format_RGB32)
            .copy();
    }

    QTemporaryDir m_folder;
    PageWorker m_worker;
    int m_patience = kPatience;
};

} // namespace

TEST_F(Pages, OfAPdfHaveTheirSizesAndColors)
{
    ASSERT_TRUE(start(write("two.pdf", pdfWithPages({{595, 842}, {1191, 842}}))));
    const auto answer = layOut();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->verdict, PageVerdict::Done);
    EXPECT_EQ(answer->content, PageContent::Pdf);
    EXPECT_EQ(answer->pages, 2U);
    // The largest page, turned upright.
    EXPECT_EQ(answer->width, 84200U);
    EXPECT_EQ(answer->height, 119100U);
    const auto second = measure(1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->width, 119100U);
    EXPECT_EQ(second->height, 84200U);
    EXPECT_EQ(render(1, {50, 30}).pixelColor(40, 5), QColor(Qt::red));
    const QImage gray = render(0, {31, 40}, true);
    EXPECT_EQ(gray.pixelColor(20, 5), QColor(qGray(255, 0, 0), qGray(255, 0, 0), qGray(255, 0, 0)));
    // A number in the corner of the page, in a font that is not part of the document.
    const QImage number = render(0, {298, 421});
    int white = 0;
    for (int y = 340; y < 400; ++y)
        for (int x = 30; x < 70; ++x)
            white += number.pixelColor(x, y) == Qt::white;
    EXPECT_GT(white, 50);
    EXPECT_NE(measure(2)->verdict, PageVerdict::Done);
    EXPECT_TRUE(render(2, {10, 10}).isNull());
    EXPECT_TRUE(render(0, {60'000, 60'000}).isNull());
    EXPECT_FALSE(render(0, {10, 10}).isNull());
}

TEST_F(Pages, OfPicturesAndTexts)
{
    for (const char *name : {"a.png", "a.jpg", "a.bmp", "a.tif", "a.gif", "a.ppm"}) {
        SCOPED_TRACE(name);
        QString file = m_folder.filePath(name);
        if (QString(name) == "a.gif") {
            // Qt does not write this format: one black point.
            file = write(name, QByteArray::fromHex("47494638376101000100800000000000ffffff2c00000000010001000002024401"
                                                   "003b"));
        } else {
            save(name, {30, 20}, Qt::blue);
        }
        ASSERT_TRUE(start(file));
        const auto answer = layOut();
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->content, PageContent::Picture);
        EXPECT_EQ(answer->pages, 1U);
        EXPECT_FALSE(render(0, {300, 200}).isNull());
        EXPECT_LT(render(0, {9, 6}).pixelColor(4, 3).red(), 10);
    }
    ASSERT_TRUE(start(write("text", QByteArray("Grüße\n").repeated(100))));
    const auto answer = layOut();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->content, PageContent::Text);
    EXPECT_EQ(answer->pages, 2U); // 70 lines of 12 points each
    EXPECT_EQ(layOut({595, 421})->pages, 3U);
    const QImage page = render(2, {595, 421});
    EXPECT_EQ(page.pixelColor(300, 200), QColor(Qt::white));
    bool ink = false;
    for (int x = 0; x < 40; ++x)
        ink = ink || page.pixelColor(x, 8).lightness() < 128;
    EXPECT_TRUE(ink);
}

TEST_F(Pages, OfHostileDocumentsAreNoneAndCostNothing)
{
    for (const bvtest::HostileDocument &document : bvtest::hostileDocuments()) {
        SCOPED_TRACE(document.name);
        ASSERT_TRUE(start(write("hostile", document.content)));
        m_patience = kPatience;
        const auto answer = layOut();
        if (answer && answer->verdict == PageVerdict::Done) {
            // Its picture may come out white, late or not at all; what counts is that the process can be ended.
            m_patience = kImpatience;
            measure(0);
            render(0, {300, 400});
        }
        m_worker.end();
    }
    mkfifo(QFile::encodeName(m_folder.filePath("fifo")).constData(), 0600);
    EXPECT_FALSE(start(m_folder.filePath("fifo")));
    EXPECT_FALSE(start(m_folder.path()));
    EXPECT_FALSE(start("/dev/zero"));
    // No process is left over. On a busy machine one may be slow to die.
    const QDeadlineTimer deadline(kPatience);
    while (waitpid(-1, nullptr, WNOHANG) >= 0 && !deadline.hasExpired())
        QThread::msleep(5);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(Pages, AreReadWithoutRights)
{
    for (const QString &path :
         {write("a.pdf", pdfWithPages({kA4})), save("a.png", {3, 3}, Qt::red), write("a", "text")}) {
        ASSERT_TRUE(start(path));
        ASSERT_TRUE(layOut());
        QFile status(QStringLiteral("/proc/%1/status").arg(m_worker.process()));
        ASSERT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        EXPECT_TRUE(text.contains("NoNewPrivs:\t1\n"));
        EXPECT_TRUE(text.contains("Threads:\t1\n"));
        if (!text.contains("Seccomp:\t2\n"))
            GTEST_SKIP() << "this kernel or container has no seccomp";
    }
}

TEST_F(Pages, OfAWorkerThatHangsOrLiesAreNone)
{
    const auto script = [this](const char *name, const QByteArray &line) {
        const QString path = write(name, "#!/bin/sh\n" + line + '\n');
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path.toStdString();
    };
    const std::string document = write("a.pdf", pdfWithPages({kA4})).toStdString();
    const PageRequest request;
    ASSERT_TRUE(m_worker.start(script("hanging", "exec sleep 1000"), document));
    ASSERT_TRUE(m_worker.send(request));
    EXPECT_FALSE(m_worker.waitForAnswer(50));
    QElapsedTimer timer;
    timer.start();
    m_worker.end();
    EXPECT_LT(timer.elapsed(), 5'000);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);

    ASSERT_TRUE(m_worker.start(script("lying", "exec cat /dev/zero"), document));
    const auto answer = m_worker.waitForAnswer(kPatience);
    ASSERT_TRUE(answer);
    EXPECT_FALSE(plausible(*answer, request));

    PageAnswer said;
    said.verdict = PageVerdict::Done;
    said.pages = kMostPages;
    EXPECT_TRUE(plausible(said, request));
    said.pages = kMostPages + 1;
    EXPECT_FALSE(plausible(said, request));
    PageRequest render;
    render.task = said.task = PageTask::Render;
    render.width = said.width = 10;
    render.height = said.height = 10;
    said.bytes = 400;
    EXPECT_TRUE(plausible(said, render));
    for (uint32_t *number : {&said.bytes, &said.width, &said.page}) {
        ++*number;
        EXPECT_FALSE(plausible(said, render));
        --*number;
    }
}

TEST_F(Pages, AreCounted)
{
    EXPECT_EQ(pdfPageCount(write("three.pdf", pdfWithPages({kA4, kA4, kA4})).toStdString()), 3);
    EXPECT_FALSE(pdfPageCount(write("cut.pdf", pdfWithPages({kA4}).left(200)).toStdString()));
    EXPECT_FALSE(pdfPageCount(write("text", "four\n").toStdString()));
    EXPECT_FALSE(pdfPageCount(m_folder.filePath("missing").toStdString()));
}

TEST(DocumentKind, IsToldFromTheFirstBytes)
{
    using namespace std::string_view_literals;
    const std::pair<std::string_view, PageContent> cases[] = {
        {"%PDF-1.4\n"sv, PageContent::Pdf},
        {"\0\0junk\r\n%PDF-1.4\n"sv, PageContent::Pdf},
        {"%!PS-Adobe-3.0\n"sv, PageContent::Unknown},
        {"\x1b%-12345X@PJL\n%PDF-1.4"sv, PageContent::Unknown},
        {"PK\3\4"sv, PageContent::Unknown},
        {"BM, the author"sv, PageContent::Text},
        {"BM\x36\0\0\0"sv, PageContent::Picture},
        {"Gr\xfc\xdf\x65\n\f"sv, PageContent::Text},
        {""sv, PageContent::Unknown},
    };
    for (const auto &[head, content] : cases)
        EXPECT_EQ(documentContent(head), content) << head;
}

TEST(TextFlow, BreaksLinesAndPages)
{
    struct Case
    {
        QString text;
        QStringList pages; // lines with "|" between them
    };
    const Case cases[] = {
        {"abcdefgh\nx", {"abcde|fgh", "x"}},
        {"abcde\nx", {"abcde|x"}},
        {"a\r\nb\rc", {"a|b", "c"}},
        {"a\fb", {"a", "b"}},
        {"\tb", {"        |b"}},
        {u"abcd\U0001F600e"_qs, {u"abcd\U0001F600|e"_qs}},
        {QString::fromLatin1("a\0\x1b[1mb", 7), {"a[1mb"}},
    };
    for (const Case &one : cases) {
        TextFlow flow(one.text, 5, 2);
        QStringList pages;
        while (!flow.atEnd()) {
            QStringList lines;
            flow.readPage([&lines](int, const QString &line) { lines << line; });
            pages << lines.join('|');
        }
        EXPECT_EQ(pages, one.pages) << qPrintable(one.text);
    }
}
