// Tests of the dialog's parts that need no queue: page ranges, summary, watcher, documents, remembered tickets, rows.
#include "DialogWorld.h"

#include "dialog/PpdOptionRows.h"
#include "jobs/PageRange.h"
#include "queues/Ticket.h"
#include "widgets/ChangeWatcher.h"
#include "widgets/DocumentList.h"
#include "widgets/SummaryView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

using namespace bv;

namespace {

// The option that comes of a text; none: refused.
TEST(PageRanges, AreReadAsPeopleWriteThem)
{
    // clang-format off
    const std::pair<const char *, const char *> rows[] = {
        {"3", "3"}, {" 1 - 3 , 8- ", "1-3,8-"}, {"-2", "1-2"}, {"9, 1-4; 3-6", "1-6,9"}, {"1-2,3", "1-3"},
        {"5-, 7-9", "5-"}, {"1,,2-2", "1-2"}, {"2–4، ٧", "2-4,7"}, {"99999999999999999999", "2147483647"}, {"", ""},
        {" , ", ""}, {"-", ""}, {"0-3", ""}, {"5-2", ""}, {"1-2-3", ""}, {"a", ""}, {"1 2", ""}, {"+1", ""},
    };
    // clang-format on
    for (const auto &[text, option] : rows) {
        const PageRange range = parsePageRange(QString::fromUtf8(text));
        EXPECT_EQ(range.toOption().toStdString(), option) << text;
        EXPECT_EQ(range.isValid(), *option != '\0') << text;
    }
}

TEST(Summary, FollowsTheOrderArrayAndPassesOverWhatHasNoText)
{
    PrintDictionary summary;
    summary.setValue("B", "two");
    summary.setValue("A", PrintValue::integer(1));
    summary.setValue("C", PrintArray{});
    EXPECT_EQ(summaryItems(summary), (SummaryView::Items{{"A", "1"}, {"B", "two"}}));
    summary.setValue(kSummaryDisplayOrder, PrintArray{"B", "C", "missing", PrintValue::integer(3), "A", "B"});
    EXPECT_EQ(summaryItems(summary), (SummaryView::Items{{"B", "two"}, {"A", "1"}, {"B", "two"}}));
    summary.setValue(kSummaryDisplayOrder, "no array");
    EXPECT_EQ(summaryItems(summary).size(), 2U);
}

TEST(Summary, ShowsMarkupAsText)
{
    PrintDictionary summary;
    summary.setValue("<b>A</b>", "1 < 2 & 3");
    SummaryView view;
    view.showSummary(summary);
    EXPECT_TRUE(view.toPlainText().contains("<b>A</b>"));
    EXPECT_TRUE(view.toPlainText().contains("1 < 2 & 3"));
}

TEST(ChangeWatcherTest, TellsManyChangesOfOneTurnOnce)
{
    QWidget root;
    auto *combo = new QComboBox(&root);
    combo->addItems({"a", "b"});
    auto *spin = new QSpinBox(&root);
    ChangeWatcher watcher;
    watcher.watch(&root);
    QSignalSpy changed(&watcher, &ChangeWatcher::changed);
    combo->setCurrentIndex(1);
    spin->setValue(7);
    EXPECT_EQ(changed.count(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
}

TEST(ChangeWatcherTest, FollowsControlsThatAreMadeLater)
{
    QWidget root;
    root.show();
    ChangeWatcher watcher;
    watcher.watch(&root);
    auto *box = new QWidget(&root);
    auto *layout = new QVBoxLayout(box);
    auto *slider = new QSlider;
    layout->addWidget(slider);
    box->show();
    QCoreApplication::processEvents();
    QSignalSpy changed(&watcher, &ChangeWatcher::changed);
    slider->setValue(slider->value() + 5);
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
}

using DialogParts = bvtest::DialogTest;

TEST_F(DialogParts, TakesFilesOnceAndSaysWhatItLeavesOut)
{
    DocumentList documents;
    QSignalSpy refused(&documents, &DocumentList::refused);
    documents.addDocuments({document, folder.filePath("./letter.pdf"), folder.path(), folder.filePath("none.pdf")});
    documents.addDocuments({document});
    EXPECT_EQ(documents.documents(), QStringList{document});
    ASSERT_EQ(refused.count(), 1);
    EXPECT_TRUE(refused[0][0].toString().contains("none.pdf"));
    EXPECT_EQ(refused[0][0].toString().count('\n'), 1);
}

TEST_F(DialogParts, TakesDroppedFilesOfThisMachineOnly)
{
    DocumentList documents;
    QSignalSpy refused(&documents, &DocumentList::refused);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(document), QUrl("https://example.org/a.pdf")});
    EXPECT_TRUE(DocumentList::canTake(data));
    documents.addDropped(data);
    EXPECT_EQ(documents.documents(), QStringList{document});
    EXPECT_EQ(refused.count(), 1);
}

TEST_F(DialogParts, KeepsEachQueueApartUnderAnyName)
{
    // clang-format off
    const QStringList names = {
        "QL70", "ql70", "a/b", "..", "a b", "a%2Fb", "Büro", QString(300, 'x'), QString(300, 'x') + "y",
        QString(120, QChar(0x65e5)),
    };
    // clang-format on
    for (qsizetype i = 0; i < names.size(); ++i) {
        PrintDictionary ticket;
        ticket.setValue("Number", PrintValue::integer(i));
        ASSERT_TRUE(remembered->store(names[i], ticket)) << qPrintable(names[i]);
        EXPECT_LT(QFileInfo(remembered->filePath(names[i])).fileName().toUtf8().size(), 256);
        EXPECT_EQ(QFileInfo(remembered->filePath(names[i])).dir(), QDir(folder.filePath("tickets")));
    }
    for (qsizetype i = 0; i < names.size(); ++i) {
        const auto ticket = remembered->load(names[i]);
        ASSERT_TRUE(ticket);
        EXPECT_EQ(*ticket->value("Number").integer(), i);
    }
    EXPECT_FALSE(remembered->load("never stored"));
}

TEST_F(DialogParts, PutsAnUnreadableFileAside)
{
    const QString path = remembered->filePath("Q");
    for (const char *content : {"{ no json", "[1]", "", "{\"a\": null}"}) {
        remembered->store("Q", {});
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_FALSE(remembered->load("Q")) << content;
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_TRUE(QFile::exists(path + ".unreadable"));
    }
}

TEST_F(DialogParts, HoldTheTicketsChoicesAndTakeDefaultsForUnknownOnes)
{
    Result<PpdFile> ppd = source.ppd("Paper");
    ASSERT_TRUE(ppd);
    PpdOptionRows rows(ppd.value().handle());
    EXPECT_EQ(rows.keywords(), (QStringList{"PageSize", "Duplex"}));
    Ticket ticket;
    ticket.setValue("PageSize", "A6");
    ticket.setValue("Duplex", PrintValue::integer(1));
    rows.readFrom(&ticket);
    Ticket written;
    rows.writeTo(&written);
    EXPECT_EQ(*written.value("PageSize").string(), "A6");
    EXPECT_EQ(*written.value("Duplex").string(), "None");
    EXPECT_EQ(rows.conflictText(), QString());

    ticket.setValue("Duplex", "DuplexNoTumble");
    rows.readFrom(&ticket);
    EXPECT_TRUE(rows.conflictText().contains("Postcard"));
    EXPECT_TRUE(rows.conflictText().contains("Long edge"));
    rows.restoreDefaults();
    rows.updateConflicts(&written);
    EXPECT_EQ(rows.conflictText(), QString());
}

} // namespace
