// SPDX-License-Identifier: GPL-2.0-or-later
// The parts of the dialog by themselves: summary, change watcher, document list, survey of queues, option rows.
#include "DialogWorld.h"

#include "options/PpdOptionRows.h"
#include "printers/PaneSurvey.h"
#include "queues/Ticket.h"
#include "widgets/ChangeWatcher.h"
#include "widgets/DocumentList.h"
#include "widgets/SummaryView.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

using namespace bv;

namespace {

TEST(Summary, FollowsTheOrderArrayAndSkipsValuesWithoutText)
{
    PrintDictionary summary;
    summary.setValue("B", "two");
    summary.setValue("A", PrintValue::integer(1));
    summary.setValue("C", PrintArray{});
    const auto shown = [&summary] {
        QStringList shown;
        for (const SummaryEntry &entry : summaryEntries(summary))
            shown << entry.name + u'=' + entry.value;
        return shown;
    };
    EXPECT_EQ(shown(), (QStringList{"A=1", "B=two"}));
    summary.setValue(kSummaryDisplayOrder, PrintArray{"B", "C", "missing", PrintValue::integer(3), "A", "B"});
    EXPECT_EQ(shown(), (QStringList{"B=two", "A=1"}));
    summary.setValue(kSummaryDisplayOrder, "no array");
    EXPECT_EQ(shown().size(), 2);
}

TEST(Summary, ShowsWhatDiffersFirstAndTheRestInGroups)
{
    PrintDictionary defaults;
    for (const char *name : {"Toner", "<b>Sharp</b>", "Photo", "Paper"})
        defaults.setValue(name, "usual");
    PrintDictionary summary = defaults;
    summary.setValue(kSummaryDisplayOrder, PrintArray{"Toner", "Photo", "<b>Sharp</b>", "Paper"});
    const SummaryHints hints = {{"Photo", {"Images", {}}}, {"<b>Sharp</b>", {"Images", "Gray is on."}}};
    SummaryView view;
    view.showEntries(summaryEntries(summary, defaults, hints));
    EXPECT_EQ(view.lines(), (QStringList{"All as the printer proposes.", "Unchanged", "Toner: usual", "Paper: usual",
                                         "Images", "Photo: usual", "<b>Sharp</b>: usual"}));
    const QTreeWidgetItem *dimmed = view.topLevelItem(2)->child(1);
    EXPECT_FALSE(view.topLevelItem(2)->isExpanded());
    EXPECT_TRUE(dimmed->data(0, Qt::AccessibleTextRole).toString().contains("Gray is on."));
    EXPECT_TRUE(dimmed->data(1, Qt::ForegroundRole).isValid());

    summary.setValue("Photo", "vivid");
    view.topLevelItem(2)->setExpanded(true);
    view.showEntries(summaryEntries(summary, defaults, hints));
    EXPECT_EQ(view.lines(), (QStringList{"Changed", "Photo: vivid", "Unchanged", "Toner: usual", "Paper: usual",
                                         "Images", "<b>Sharp</b>: usual"}));
    EXPECT_TRUE(view.topLevelItem(0)->isExpanded());
    EXPECT_TRUE(view.topLevelItem(0)->child(0)->font(1).bold());
    EXPECT_TRUE(view.topLevelItem(2)->isExpanded()) << "what the user unfolded stays so";

    const QTreeWidgetItem *row = view.topLevelItem(0)->child(0);
    summary.setValue("Photo", "vivid & <i>deep</i>");
    view.showEntries(summaryEntries(summary, defaults, {{"Photo", {"Images", {}}}, {"<b>Sharp</b>", {"Images", {}}}}));
    EXPECT_EQ(view.topLevelItem(0)->child(0), row) << "only texts are renewed";
    EXPECT_EQ(row->text(1), "vivid & <i>deep</i>");
    EXPECT_FALSE(view.topLevelItem(2)->child(0)->data(1, Qt::ForegroundRole).isValid());
    view.showNote("Nothing.");
    EXPECT_EQ(view.lines(), QStringList{"Nothing."});
}

TEST(Summary, BreaksLongNamesInsteadOfCuttingThem)
{
    SummaryView view;
    view.resize(280, 400);
    view.show();
    for (const int points : {9, 18}) {
        QFont font = view.font();
        font.setPointSize(points);
        view.setFont(font);
        view.resize(view.fontMetrics().averageCharWidth() * 44, 400);
        view.showEntries({{"Graphics Edge Enhancement", "Off", "On", {}},
                          {"Graphics RGB Gray Treatment", "Black Toner for Gray", "Other", {}},
                          {"Two-sided", "Long-Edge Binding, all of the sheets", "Off", {}}});
        QCoreApplication::processEvents();
        for (int i = 0; i < 3; ++i) {
            const QTreeWidgetItem *row = view.topLevelItem(0)->child(i);
            for (const int column : {0, 1}) {
                const QRect room = view.visualRect(view.indexFromItem(row, column)).adjusted(3, 0, -3, 0);
                const QRect needed =
                    QFontMetrics(row->font(column))
                        .boundingRect(QRect(0, 0, room.width(), 1000), Qt::TextWordWrap, row->text(column));
                EXPECT_LE(needed.width(), room.width()) << points << row->text(column).toStdString();
                EXPECT_LE(needed.height(), room.height()) << points << row->text(column).toStdString();
            }
        }
    }
}

TEST(ChangeWatcherTest, ReportsSeveralChangesOfOneTurnOnce)
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

TEST(ChangeWatcherTest, WatchesControlsThatAreAddedLater)
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

TEST_F(DialogParts, AddsEachFileOnceAndReportsUnreadableOnes)
{
    DocumentList documents;
    QSignalSpy refused(&documents, &DocumentList::refused);
    documents.addDocuments({document, folder.filePath("./letter.pdf"), folder.path(), folder.filePath("none.pdf")});
    documents.addDocuments({document});
    EXPECT_EQ(documents.documents(), QStringList{document});
    ASSERT_EQ(refused.count(), 2);
    EXPECT_TRUE(refused[0][0].toString().contains("none.pdf"));
    EXPECT_EQ(refused[0][0].toString().count('\n'), 2);
    EXPECT_TRUE(refused[0][0].toString().contains("“letter.pdf” is in the list already."));
}

TEST_F(DialogParts, OrdersTheDocumentsByKeys)
{
    DocumentList documents;
    documents.show();
    QStringList paths;
    for (const char *name : {"a", "b", "c", "d"})
        paths << write(name, QByteArray(512, 'x'));
    documents.addDocuments(paths);
    EXPECT_TRUE(documents.findChild<QLabel *>()->text().contains("4, 2.0"));
    QSignalSpy changed(&documents, &DocumentList::documentsChanged);
    const auto order = [&] {
        QString names;
        for (const QString &path : documents.documents())
            names += path.back();
        return names;
    };
    documents.list()->setCurrentRow(1);
    documents.list()->item(2)->setSelected(true);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&documents));
    documents.list()->setFocus();
    QTest::keyClick(documents.list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(order(), "bcad");
    QTest::keyClick(documents.list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(order(), "bcad") << "no farther";
    EXPECT_EQ(changed.count(), 1);
    QTest::keyClick(documents.list(), Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(documents.list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), "adbc");
    documents.list()->model()->moveRow({}, 0, {}, 4); // as a drag does
    EXPECT_EQ(order(), "dbca");
    EXPECT_EQ(changed.count(), 4);
    QTest::keyClick(documents.list(), Qt::Key_Delete);
    EXPECT_EQ(order(), "da");
    QTest::keyClick(documents.list(), Qt::Key_Delete);
    EXPECT_EQ(order().size(), 1) << "the next one is selected";
}

TEST_F(DialogParts, AcceptsOnlyLocalFilesFromADrop)
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

TEST_F(DialogParts, SurveyTheQueuesOnlyAfterStart)
{
    const auto queue = [](const char *name) {
        PrintQueue named;
        named.name = QLatin1String(name);
        return named;
    };
    PaneSurvey survey(sharedSource, {queue("Plain"), queue("Second"), queue("Bare")}, {"TPStamp", "TPToner"});
    EXPECT_FALSE(source.asked.tryAcquire(1, 50));
    QSignalSpy found(&survey, &PaneSurvey::withoutPane);
    survey.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return found.count() == 2; }));
    EXPECT_EQ(found[0], (QVariantList{"Plain", ""}));
    EXPECT_EQ(found[1][0], "Bare");
    EXPECT_TRUE(found[1][1].toString().contains("driver"));
}

TEST_F(DialogParts, OneQueueAnswersForAllOfItsMakeAndModel)
{
    std::vector<PrintQueue> queues;
    const auto add = [&](const QString &name, const QString &model, const char *ppd, bool isClass = false) {
        PrintQueue &queue = queues.emplace_back();
        queue.name = name;
        queue.makeAndModel = model;
        queue.isClass = isClass;
        source.ppdPaths[name] = source.ppdPaths[ppd];
    };
    for (int i = 0; i < 25; ++i) {
        add(QStringLiteral("paper%1").arg(i), "Paper", "Paper");
        add(QStringLiteral("plain%1").arg(i), "Plain", "Plain");
    }
    add("pool", "Local Printer Class", "Paper", true);
    add("plain pool", "Local Printer Class", "Plain", true);
    add("made by hand", "", "Plain");
    add("made by hand too", "", "Paper");
    add("no driver", "Raw", "Bare");
    add("no driver either", "Raw", "Bare");
    PaneSurvey survey(sharedSource, queues, {"TPToner"});
    QSignalSpy found(&survey, &PaneSurvey::withoutPane);
    survey.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return found.count() == 25 + 1 + 1 + 2; }));
    QStringList plain;
    for (const QVariantList &one : found)
        if (one[1].toString().isEmpty())
            plain << one[0].toString();
        else
            EXPECT_TRUE(one[1].toString().contains(one[0].toString())) << "each failure names its own queue";
    EXPECT_EQ(plain.size(), 27);
    EXPECT_TRUE(plain.contains("plain24") && plain.contains("plain pool") && plain.contains("made by hand"));
    EXPECT_EQ(source.asked.available(), 2 + 2 + 2 + 2);
}

TEST_F(DialogParts, ShowTheTicketsChoicesAndDefaultsForUnknownOnes)
{
    Result<PpdFile> ppd = PpdFile::open(source.ppdPaths["Paper"]);
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
    rows.restoreDefaults();
    rows.writeTo(&written);
    EXPECT_EQ(*written.value("PageSize").string(), "A4");
}

} // namespace
