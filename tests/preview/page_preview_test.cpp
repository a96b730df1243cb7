// SPDX-License-Identifier: GPL-2.0-or-later
// The preview as its users see it, with the real bvpages and with ones that misbehave.
#include "pages/SampleDocuments.h"
#include "preview/PagePreview.h"
#include "preview/SheetView.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>

using namespace bv;
using bvtest::pdfWithPages;

namespace {

constexpr QSize kA4(595, 842);
constexpr int kPatience = 20'000;

// The processes that this one has started and that still run.
QList<int> children()
{
    QFile file(QStringLiteral("/proc/self/task/%1/children").arg(getpid()));
    QList<int> found;
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray &word : file.readAll().simplified().split(' '))
            if (!word.isEmpty())
                found << word.toInt();
    return found;
}

class Preview : public testing::Test
{
protected:
    void SetUp() override
    {
        m_preview = std::make_unique<PagePreview>();
        m_preview->resize(300, 400);
        m_preview->setSheet({kA4, {12, 12, 12, 12}});
    }
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    void useScript(const QByteArray &line)
    {
        const QString path = write("script", "#!/bin/sh\n" + line + '\n');
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_preview->setProgram(path.toStdString(), {200, 200});
    }
    void show(const QStringList &documents)
    {
        m_preview->setDocuments(documents);
        m_preview->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_preview.get()));
        m_preview->start();
    }
    // What the preview says of the page or document that it shows, as soon as it says what is expected.
    QString said(const QString &expected)
    {
        const auto name = [this] { return m_preview->sheet().accessibleName(); };
        (void)QTest::qWaitFor([&] { return name() == expected && !isWaiting(); }, kPatience);
        return isWaiting() ? name() + " (no picture)" : name();
    }
    // Whether what is shown is not what is to be shown.
    bool isWaiting() const
    {
        return m_preview->page() > 0 && m_preview->sheet().picture().isNull() && sheetNote().isEmpty();
    }
    QString sheetNote() const { return m_preview->sheet().note(); }
    QWidget *sheet() { return m_preview->findChild<QWidget *>("previewSheet"); }
    template <typename Widget> Widget *find(const char *name) { return m_preview->findChild<Widget *>(name); }
    QColor shownColor() const { return m_preview->sheet().picture().pixelColor(150, 5); }
    void turnWheel(QWidget *widget, int eighths)
    {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, {0, eighths}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<PagePreview> m_preview;
};

QString pageName(int page, int pages, const char *document)
{
    return QStringLiteral("Preview, page %1 of %2 of %3").arg(page).arg(pages).arg(QLatin1String(document));
}

} // namespace

TEST_F(Preview, TurnsPagesByKeysWheelButtonsAndField)
{
    show({write("a.pdf", pdfWithPages(std::vector<QSize>(5, kA4))), write("b.pdf", pdfWithPages({kA4, kA4}))});
    EXPECT_EQ(said(pageName(1, 5, "a.pdf")), pageName(1, 5, "a.pdf"));
    EXPECT_EQ(shownColor(), QColor(Qt::red));
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(sheet());
    EXPECT_EQ(accessible->role(), QAccessible::Graphic);
    EXPECT_EQ(accessible->text(QAccessible::Name), pageName(1, 5, "a.pdf"));
    EXPECT_FALSE(find<QToolButton>("previewBack")->isEnabled());
    QTest::keyClick(sheet(), Qt::Key_PageDown);
    EXPECT_EQ(said(pageName(2, 5, "a.pdf")), pageName(2, 5, "a.pdf"));
    turnWheel(sheet(), -60);
    turnWheel(sheet(), -180);
    EXPECT_EQ(said(pageName(4, 5, "a.pdf")), pageName(4, 5, "a.pdf"));
    QTest::keyClick(sheet(), Qt::Key_Home);
    QTest::keyClick(sheet(), Qt::Key_End);
    EXPECT_EQ(said(pageName(5, 5, "a.pdf")), pageName(5, 5, "a.pdf"));
    EXPECT_EQ(find<QLabel>("previewCount")->text(), "of 5");
    // The next document, and back to the last page of this one.
    find<QToolButton>("previewForward")->click();
    EXPECT_EQ(said(pageName(1, 2, "b.pdf")), pageName(1, 2, "b.pdf"));
    EXPECT_TRUE(find<QLabel>("previewName")->text().endsWith("2 of 2"));
    find<QToolButton>("previewBack")->click();
    EXPECT_EQ(said(pageName(5, 5, "a.pdf")), pageName(5, 5, "a.pdf"));
    auto *field = find<QSpinBox>("previewPage");
    turnWheel(field, 120);
    EXPECT_EQ(field->value(), 5);
    field->selectAll();
    QTest::keyClicks(field, "3");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(said(pageName(3, 5, "a.pdf")), pageName(3, 5, "a.pdf"));
    m_preview->showDocument(1);
    QTest::keyClick(sheet(), Qt::Key_End);
    EXPECT_EQ(said(pageName(2, 2, "b.pdf")), pageName(2, 2, "b.pdf"));
    EXPECT_FALSE(find<QToolButton>("previewForward")->isEnabled());
}

TEST_F(Preview, ShowsTheSelectedPagesInGrayOnThePaper)
{
    show({write("a.pdf", pdfWithPages(std::vector<QSize>(9, kA4)))});
    m_preview->setSpans({{3, 4}, {8, 99}});
    EXPECT_EQ(said(pageName(3, 9, "a.pdf")), pageName(3, 9, "a.pdf"));
    QTest::keyClick(sheet(), Qt::Key_PageDown);
    QTest::keyClick(sheet(), Qt::Key_PageDown);
    EXPECT_EQ(said(pageName(8, 9, "a.pdf")), pageName(8, 9, "a.pdf"));
    QTest::keyClick(sheet(), Qt::Key_Home);
    EXPECT_EQ(said(pageName(3, 9, "a.pdf")), pageName(3, 9, "a.pdf"));
    m_preview->setSpans({{20, 30}});
    EXPECT_EQ(m_preview->page(), 0);
    EXPECT_FALSE(sheetNote().isEmpty());
    m_preview->setSpans({});
    m_preview->setGray(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_preview->sheet().picture().isGrayscale(); }, kPatience));
    // A page on a sheet of half the size is drawn smaller: less paper, more border.
    const QSize before = m_preview->sheet().picture().size();
    m_preview->setSheet({{842, 1191}, {}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_preview->sheet().picture().width() < before.width() - 50; }, kPatience));
}

TEST_F(Preview, SaysWhyThereIsNone)
{
    const QString folder = m_folder.filePath("folder");
    QDir().mkdir(folder);
    const QString good = write("good.pdf", pdfWithPages({kA4}));
    const std::pair<QString, QString> cases[] = {
        {write("cut.pdf", pdfWithPages({kA4}).left(200)),
         "Preview of cut.pdf: No preview\nIt cannot be read and may be damaged."},
        {folder, "Preview of folder: No preview\nIt cannot be read and may be damaged."},
        {m_folder.filePath("missing"), "Preview of missing: No preview\nIt cannot be read and may be damaged."},
    };
    show({});
    EXPECT_EQ(said("Preview"), "Preview");
    for (const auto &[path, sentence] : cases) {
        m_preview->setDocuments({path, good});
        EXPECT_EQ(said(sentence), sentence);
        // Others are not touched by it.
        QTest::keyClick(sheet(), Qt::Key_PageDown);
        EXPECT_EQ(said(pageName(1, 1, "good.pdf")), pageName(1, 1, "good.pdf"));
        QTest::keyClick(sheet(), Qt::Key_PageUp);
        EXPECT_EQ(said(sentence), sentence);
    }
    m_preview->setDocuments({write("letter.ps", "%!PS-Adobe-3.0\n")});
    EXPECT_TRUE(QTest::qWaitFor([this] { return sheetNote().startsWith("letter.ps\n"); }, kPatience));
    EXPECT_TRUE(sheetNote().contains("15 bytes"));
}

TEST_F(Preview, OutlivesAProcessThatHangsLiesOrEnds)
{
    const QString document = write("a.pdf", pdfWithPages({kA4}));
    const std::pair<const char *, const char *> cases[] = {
        {"exec sleep 1000", "It takes too long to draw."},
        {"exec cat /dev/zero", "It cannot be read and may be damaged."},
        {"exit 1", "It cannot be read and may be damaged."},
        {"printf 'g'; exec sleep 1000", "It takes too long to draw."},
    };
    for (const auto &[line, why] : cases) {
        m_preview = std::make_unique<PagePreview>();
        useScript(line);
        show({document});
        EXPECT_TRUE(
            QTest::qWaitFor([&, why = why] { return sheetNote() == QStringLiteral("No preview\n") + why; }, kPatience))
            << line;
        EXPECT_EQ(children().size(), 0);
    }
    // A process that ends between two pages is replaced.
    m_preview = std::make_unique<PagePreview>();
    show({write("b.pdf", pdfWithPages(std::vector<QSize>(9, kA4)))});
    EXPECT_EQ(said(pageName(1, 9, "b.pdf")), pageName(1, 9, "b.pdf"));
    ASSERT_EQ(children().size(), 1);
    kill(children().front(), SIGKILL);
    QTest::keyClick(sheet(), Qt::Key_End);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_preview->page() == 9 && !isWaiting() && children().size() == 1; },
                                kPatience));
    EXPECT_EQ(sheetNote(), QString());
}

TEST_F(Preview, RunsNoProcessWhileItIsFolded)
{
    m_preview->setFolded(true);
    QSignalSpy folded(m_preview.get(), &PagePreview::foldedByUser);
    show({write("a.pdf", pdfWithPages({kA4}))});
    auto *toggle = find<QToolButton>("previewToggle");
    EXPECT_TRUE(children().isEmpty());
    EXPECT_FALSE(sheet()->isVisible());
    toggle->click();
    EXPECT_EQ(said(pageName(1, 1, "a.pdf")), pageName(1, 1, "a.pdf"));
    EXPECT_EQ(children().size(), 1);
    toggle->click();
    EXPECT_TRUE(children().isEmpty());
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(folded, (QList<QList<QVariant>>{{false}, {true}}));
    toggle->click();
    EXPECT_EQ(said(pageName(1, 1, "a.pdf")), pageName(1, 1, "a.pdf"));
    m_preview.reset();
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(PageRenderer, DrawsTheNewestWishAndDropsThoseBefore)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(pdfWithPages(std::vector<QSize>(50, kA4)));
    file.close();
    PageRenderer renderer(file.fileName(), {});
    QList<int> drawn;
    QObject::connect(&renderer, &PageRenderer::drawn, [&drawn](const PageWish &wish) { drawn << wish.page; });
    QSignalSpy idle(&renderer, &PageRenderer::idle);
    renderer.draw({1, {400, 400}, false});
    renderer.drawAhead({2, {400, 400}, false});
    QObject::connect(&renderer, &PageRenderer::opened, [&renderer] {
        for (int page = 3; page <= 50; ++page)
            renderer.draw({page, {400, 400}, false});
        renderer.drawAhead({2, {400, 400}, false});
    });
    ASSERT_TRUE(idle.wait(kPatience));
    EXPECT_EQ(drawn, (QList<int>{3, 50}));
}
