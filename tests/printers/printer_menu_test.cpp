// SPDX-License-Identifier: GPL-2.0-or-later
// Choosing a printer: finding it among many, what is said of each, and a list that changes while one looks at it.
#include "printers/PrinterState.h"
#include "printers/QueueList.h"

#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace bv;

namespace {

PrintQueue queueOf(const QString &name, const QString &description = {}, const QString &location = {})
{
    PrintQueue queue;
    queue.name = name;
    queue.description = description;
    queue.location = location;
    return queue;
}

class Choosing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < 200; ++i)
            queues.push_back(queueOf(QStringLiteral("q%1").arg(i), QStringLiteral("Device %1").arg(i),
                                     i % 50 == 7 ? "Third Floor, Copy Room" : "Cellar"));
        list.setQueues(queues);
        list.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
        menu->setFocus();
    }

    QStringList found() const
    {
        QStringList names;
        for (int row = 0; row < menu->list()->model()->rowCount(); ++row)
            names << menu->list()->model()->index(row, 0).data(Qt::UserRole).toString();
        return names;
    }
    void type(const QString &words) { QTest::keyClicks(menu->field(), words); }
    QString text(int row) const { return menu->itemText(row); }

    std::vector<PrintQueue> queues;
    QueueList list;
    PrinterMenu *menu = list.popUp();
};

TEST_F(Choosing, FindsAnyPartOfNameDescriptionOrPlace)
{
    list.choose("q0");
    QSignalSpy chosen(&list, &QueueList::queueChosen);
    QTest::keyClick(menu, 'f'); // the first letter opens the list
    ASSERT_TRUE(menu->field()->isVisible());
    EXPECT_EQ(menu->field()->text(), "f");
    type("LOOR copy");
    EXPECT_EQ(found(), (QStringList{"q7", "q57", "q107", "q157"}));
    type(" q1");
    EXPECT_EQ(found(), (QStringList{"q107", "q157"}));
    EXPECT_TRUE(menu->list()->currentIndex().data(Qt::AccessibleTextRole).toString().contains("Third Floor"));
    QTest::keyClick(menu->field(), Qt::Key_Down);
    QTest::keyClick(menu->field(), Qt::Key_Return);
    EXPECT_FALSE(menu->field()->isVisible());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0], "q157");

    menu->showPopup();
    EXPECT_EQ(found().size(), 200);
    type("nothing like it");
    EXPECT_TRUE(menu->field()->accessibleDescription().contains("nothing like it"));
    QTest::keyClick(menu->field(), Qt::Key_Return);
    menu->showPopup();
    QTest::keyClick(menu->field(), Qt::Key_Up);
    QTest::keyClick(menu->field(), Qt::Key_Escape);
    EXPECT_EQ(list.chosen(), "q157");
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(Choosing, ShowsTheLastUsedFirstAndKeepsChoiceAndMarks)
{
    list.choose("q3");
    list.mark("q5", QueueList::Mark::WithoutPane, "It has <b>none</b>.");
    QSignalSpy chosen(&list, &QueueList::queueChosen);
    list.setQueues(queues, {"gone", "q9", "q5"});
    EXPECT_EQ(text(0), "Device 9 (q9)");
    EXPECT_EQ(text(1), "Device 5 (q5): no color options");
    EXPECT_EQ(text(2), "Device 0 (q0)");
    EXPECT_EQ(list.chosen(), "q3");
    EXPECT_EQ(chosen.count(), 0);
    list.mark("q5", QueueList::Mark::None);
    EXPECT_EQ(text(1), "Device 5 (q5)");
    EXPECT_EQ(menu->itemData(1, Qt::AccessibleDescriptionRole), "Cellar");
}

TEST_F(Choosing, FollowsChangesWhileTheListIsOpen)
{
    menu->showPopup();
    type("copy");
    QTest::keyClick(menu->field(), Qt::Key_Down);
    ASSERT_EQ(menu->list()->currentIndex().data(Qt::UserRole), "q57");
    queues[57].isStopped = true;
    queues[57].stateMessage = "Out of toner: call the help desk";
    list.setQueues(queues);
    EXPECT_EQ(menu->list()->currentIndex().data(Qt::UserRole), "q57");
    for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole})
        EXPECT_TRUE(menu->list()->currentIndex().data(role).toString().contains("call the help desk")) << role;
    queues.erase(queues.begin() + 7);
    list.setQueues(queues);
    EXPECT_EQ(found(), (QStringList{"q57", "q107", "q157"}));
}

TEST(PrinterState, IsToldInPlainWords)
{
    PrintQueue queue = queueOf("q", "q", "Hall");
    queue.stateReasons = {"none"};
    EXPECT_EQ(stateOf(queue), PrinterState::Ready);
    EXPECT_EQ(printerTitle(queue), "q");
    EXPECT_EQ(printerNote(queue), "Hall");
    queue.stateReasons = {"toner-low-report", "media-jam-error", "media-jam", "com.example-odd-warning"};
    EXPECT_EQ(stateOf(queue), PrinterState::Attention);
    EXPECT_EQ(printerNote(queue), "Hall · little toner left · paper jam: take out the paper that is stuck");
    queue.acceptsJobs = false;
    queue.isStopped = true;
    queue.stateMessage = "Moved <i>away</i>";
    EXPECT_EQ(stateOf(queue), PrinterState::Closed);
    EXPECT_TRUE(whyNoJobs(queue).contains("Moved <i>away</i>"));
}

} // namespace
