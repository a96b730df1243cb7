// SPDX-License-Identifier: GPL-2.0-or-later
// Options of a PPD in rows and in the window of all others, and the conflicts between them.
#include "options/ConflictFinder.h"
#include "options/OptionMenu.h"
#include "options/PaneOptions.h"
#include "options/PpdOptionRows.h"
#include "queues/PpdFile.h"
#include "queues/Ticket.h"

#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace bv;

namespace {

// Groups, hardware that may be built in, a pair of constraints, and one between three options.
constexpr char kPpd[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*ModelName: "Paper"
*NickName: "Paper, 1.0"
*OpenGroup: General/General
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4 paper: "1"
*PageSize A6/Postcard: "2"
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4 paper: "1"
*PageRegion A6/Postcard: "2"
*CloseUI: *PageRegion
*OpenUI *MediaType/Stock: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain: ""
*MediaType Film/Film: ""
*CloseUI: *MediaType
*OpenUI *InputSlot/Slot: PickOne
*DefaultInputSlot: Upper
*InputSlot Upper/Upper: ""
*InputSlot Lower/Lower: ""
*CloseUI: *InputSlot
*OpenUI *Pane/In the pane: PickOne
*DefaultPane: One
*Pane One/One: ""
*Pane Two/Two: ""
*CloseUI: *Pane
*CloseGroup: General
*OpenGroup: Finishing/Finish & fold
*OpenUI *Staple/Staples & clips: Boolean
*DefaultStaple: False
*Staple True/Yes: ""
*Staple False/No: ""
*CloseUI: *Staple
*OpenUI *Fold/Fold: PickOne
*DefaultFold: None
*Fold None/None: ""
*Fold Half/In half: ""
*Fold Third/In thirds: ""
*CloseUI: *Fold
*OpenUI *Only/Only one choice: PickOne
*DefaultOnly: This
*Only This/This: ""
*CloseUI: *Only
*CloseGroup: Finishing
*OpenGroup: InstallableOptions/Built in
*OpenUI *Tray/Second tray: Boolean
*DefaultTray: False
*Tray True/Installed: ""
*Tray False/Not Installed: ""
*CloseUI: *Tray
*CloseGroup: InstallableOptions
*UIConstraints: *Staple True *PageSize A6
*UIConstraints: *PageSize A6 *Staple True
*UIConstraints: *Staple True *PageRegion A6
*UIConstraints: *PageRegion A6 *Staple True
*UIConstraints: *InputSlot Lower *Tray False
*UIConstraints: *Tray False *InputSlot Lower
*UIConstraints: *Fold Half *Pane Two
*UIConstraints: *Pane Two *Fold Half
*UIConstraints: *Pane Two *Fold None
*UIConstraints: *Fold None *Pane Two
)ppd";

class Options : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const auto text = PpdText::from(kPpd, "small.ppd");
        ASSERT_TRUE(text);
        m_ppd.emplace(PpdFile::open(text.value()));
        ASSERT_TRUE(*m_ppd) << m_ppd->error().toStdString();
    }
    ppd_file_t *ppd() { return m_ppd->value().handle(); }

    std::optional<Result<PpdFile>> m_ppd;
};

QStringList sentences(const std::vector<Conflict> &conflicts)
{
    QStringList all;
    for (const Conflict &conflict : conflicts) {
        QStringList ways;
        for (const Conflict::Way &way : conflict.ways)
            ways << way.words;
        all << conflict.sentence + u' ' + ways.join(" | ");
    }
    return all;
}

TEST_F(Options, AConflictIsFoundOnceWithTheWaysThatSettleIt)
{
    ConflictFinder finder(ppd());
    EXPECT_TRUE(finder.hasConstraints());
    finder.setTitle("PageSize", "Paper size");
    EXPECT_EQ(sentences(finder.find({{"PageSize", "A6"}})), QStringList());
    EXPECT_EQ(
        sentences(finder.find({{"PageSize", "A6"}, {"Staple", "True"}})),
        QStringList{"Staples & clips “Yes” and Paper size “Postcard” do not go together. Turn Staples & clips off | "
                    "Change Paper size to A4 paper"});
    EXPECT_EQ(sentences(finder.find({{"PageSize", "A6"}, {"Staple", "True"}}, {"PageSize"})).front().count('|'), 0);
    // The printer has no second tray, and no click builds one in.
    EXPECT_EQ(sentences(finder.find({{"InputSlot", "Lower"}})),
              QStringList{"Slot “Lower” and Second tray “Not Installed” do not go together. Change Slot to Upper"});
    // The default would be in conflict as well.
    EXPECT_EQ(
        sentences(finder.find({{"Fold", "Half"}, {"Pane", "Two"}})),
        QStringList{"Fold “In half” and In the pane “Two” do not go together. Change Fold to In thirds | Change In "
                    "the pane to One"});
    EXPECT_EQ(ConflictFinder(nullptr).find({{"PageSize", "A6"}}).size(), 0U);
}

TEST_F(Options, WhatHasNoRowStandsInTheWindowByGroup)
{
    Ticket ticket;
    ticket.setValue("Fold", "Half");
    ticket.setValue("Staple", "Perhaps");
    PpdOptionRows rows(ppd());
    EXPECT_EQ(rows.keywords(), (QStringList{"PageSize", "MediaType", "InputSlot"}));
    rows.readFrom(&ticket);
    auto *more = rows.findChild<QPushButton *>("moreOptions");
    EXPECT_TRUE(more->isHidden());
    rows.offerFurther({"Pane"}, "Office", &ticket);
    EXPECT_FALSE(more->isHidden());
    EXPECT_TRUE(more->text().contains("1 changed")) << qPrintable(more->text());
    rows.show();
    more->click();
    auto *window = rows.findChild<QDialog *>("moreOptionsWindow");
    ASSERT_TRUE(window && window->isVisible());
    ASSERT_EQ(window->findChildren<QGroupBox *>().size(), 1);
    EXPECT_EQ(window->findChild<QGroupBox *>()->title(), "Finish && fold");
    QStringList names;
    for (const OptionMenu *menu : window->findChildren<OptionMenu *>())
        names << menu->keyword() + ' ' + menu->choice();
    EXPECT_EQ(names, (QStringList{"Staple False", "Fold Half"}));

    QSignalSpy made(&rows, &PpdOptionRows::choiceMade);
    auto *staple = window->findChild<OptionMenu *>("row_Staple");
    QTest::keyClick(staple, Qt::Key_Home);
    EXPECT_EQ(made.value(0), (QVariantList{"Staple", "True"}));
    Ticket written;
    rows.writeTo(&written);
    EXPECT_EQ(*written.value("Staple").string(), "True");
    EXPECT_EQ(*written.value("Fold").string(), "Half");
    window->findChild<QPushButton *>("moreOptionsDefaults")->click();
    EXPECT_EQ(staple->choice(), "False");
    rows.writeTo(&written);
    EXPECT_TRUE(written.value("Staple").isNone()) << "the printer's default is no choice";
    EXPECT_EQ(made.count(), 3);
}

TEST_F(Options, AConflictMarksBothControlsWhereverTheyStand)
{
    Ticket ticket;
    ticket.setValue("PageSize", "A6");
    ticket.setValue("Staple", "True");
    PpdOptionRows rows(ppd());
    rows.offerFurther({}, "Office", &ticket);
    rows.readFrom(&ticket);
    const auto look = [&rows, &ticket] {
        rows.findConflicts(&ticket, {});
        rows.explain(conflictsByOption(rows.conflicts()), {{"InputSlot", "The printer's default."}});
    };
    look();
    rows.show();
    rows.findChild<QPushButton *>("moreOptions")->click();
    const std::array marked = {rows.findChild<OptionMenu *>("row_PageSize"),
                               rows.findChild<QDialog *>()->findChild<OptionMenu *>("row_Staple")};
    for (const OptionMenu *menu : marked) {
        EXPECT_TRUE(menu->accessibleDescription().contains("do not go together"));
        EXPECT_TRUE(menu->toolTip().contains("do not go together"));
        EXPECT_FALSE(menu->itemIcon(menu->currentIndex()).isNull());
    }
    const auto *free = rows.findChild<OptionMenu *>("row_InputSlot");
    EXPECT_TRUE(free->accessibleDescription().isEmpty());
    EXPECT_EQ(free->toolTip(), "Upper\nThe printer's default.");
    EXPECT_TRUE(rows.choose("Staple", "False"));
    EXPECT_FALSE(rows.choose("Pane", "Three"));
    look();
    for (const OptionMenu *menu : marked) {
        EXPECT_EQ(menu->accessibleDescription(), QString());
        for (int item = 0; item < menu->count(); ++item)
            EXPECT_TRUE(menu->itemIcon(item).isNull());
    }
}

TEST_F(Options, OnlyChoicesOfOneRuleAreSaidToConflict)
{
    constexpr char kRules[] = R"ppd(*cupsUIConstraints bent: "*PageSize A6 *Fold"
*cupsUIConstraints film: "*PageSize A6 *MediaType Film *InputSlot Lower"
)ppd";
    const auto text = PpdText::from(QByteArray(kPpd) + kRules, "rules.ppd");
    ASSERT_TRUE(text);
    const Result<PpdFile> file = PpdFile::open(text.value());
    ASSERT_TRUE(file);
    const ConflictFinder finder(file.value().handle());
    // PageSize stands in three rules that are broken; two options of different rules go together.
    EXPECT_THAT(
        sentences(finder.find(
            {{"PageSize", "A6"}, {"Staple", "True"}, {"Fold", "Half"}, {"MediaType", "Film"}, {"InputSlot", "Lower"}})),
        testing::ElementsAre("Media Size “Postcard” and Fold “In half” do not go together. "
                             "Change Media Size to A4 paper | Change Fold to None",
                             "Media Size “Postcard”, Stock “Film” and Slot “Lower” do not go together. "
                             "Change Media Size to A4 paper | Change Stock to Plain | Change Slot to Upper",
                             "Staples & clips “Yes” and Media Size “Postcard” do not go together. "
                             "Turn Staples & clips off | Change Media Size to A4 paper",
                             "Slot “Lower” and Second tray “Not Installed” do not go together. "
                             "Change Slot to Upper"));
    EXPECT_EQ(finder.find({{"PageSize", "A6"}, {"Fold", "None"}, {"MediaType", "Film"}}).size(), 0U);
}

TEST_F(Options, WhatAnotherControlDecidesCountsAndIsNoWayOut)
{
    Ticket ticket;
    ticket.setValue("Pane", "One");
    PpdOptionRows rows(ppd());
    rows.offerFurther({"Pane"}, "Office", &ticket);
    rows.choose("Fold", "Half");
    rows.findConflicts(&ticket, {});
    EXPECT_EQ(rows.conflicts().size(), 0U);
    rows.findConflicts(&ticket, {{"Pane", "Two"}});
    ASSERT_EQ(rows.conflicts().size(), 1U);
    ASSERT_EQ(rows.conflicts()[0].ways.size(), 1U);
    EXPECT_EQ(rows.conflicts()[0].ways[0].keyword, "Fold");
}

TEST_F(Options, TipsOfAPanelKeepItsOwnWords)
{
    QWidget view;
    auto *control = new QPushButton(&view);
    control->setProperty("bvOption", "Pane");
    control->setToolTip("Own.");
    explainPane(&view, {{"Pane", "Conflict."}}, {{"Pane", "Origin."}});
    EXPECT_EQ(control->toolTip(), "Own.\nConflict.\nOrigin.");
    EXPECT_EQ(control->accessibleDescription(), "Conflict.");
    EXPECT_FALSE(control->icon().isNull());
    control->setToolTip("Greyed.");
    control->setAccessibleDescription("Greyed.");
    explainPane(&view, {{"Pane", "Conflict."}}, {});
    EXPECT_EQ(control->toolTip(), "Greyed.\nConflict.");
    explainPane(&view, {}, {});
    EXPECT_EQ(control->toolTip(), "Greyed.");
    EXPECT_EQ(control->accessibleDescription(), "Greyed.");
    EXPECT_TRUE(control->icon().isNull());
}

} // namespace
