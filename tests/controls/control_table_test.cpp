// SPDX-License-Identifier: GPL-2.0-or-later
// Control tables: joining, constraint units, keywords and titles.
#include "common/PDECommon.h"
#include "platform/Bundle.h"
#include "plugin/PanelLog.h"
#include "support/PaneFixture.h"

#include <QLabel>
#include <QTabWidget>

namespace {

TEST(ControlTable, JoinsByKindAndEndsWithOneEndRecord)
{
    QLabel label;
    PDEControlItem first[] = {{&label, kPDEControlText, "", "A", nullptr, "a", 0, nullptr}, endControlItem()};
    // Other functions stop at a row without a control. Joining copies it, because it counts rows by kind.
    PDEControlItem second[] = {{nullptr, kPDEControlPopUp, "K", nullptr, nullptr, "b", 0, nullptr},
                               {&label, kPDEControlText, "", "C", nullptr, "c", 0, nullptr},
                               endControlItem()};
    PDEControlTable tables[] = {first, nullptr, second};
    const auto joined = PDECommon::commonControlTableCompound(tables, 3);
    ASSERT_TRUE(joined);
    EXPECT_STREQ(joined[0].identifier, "a");
    EXPECT_STREQ(joined[1].identifier, "b");
    EXPECT_STREQ(joined[2].identifier, "c");
    EXPECT_EQ(joined[3].kind, kPDEControlEnd);

    const auto empty = PDECommon::commonControlTableCompound(tables, 0);
    EXPECT_EQ(empty[0].kind, kPDEControlEnd);
    EXPECT_EQ(_DEBUGControlTable(empty.get()), 1);
    EXPECT_EQ(_DEBUGControlTable(joined.get()), 2);

    QStringList keywords;
    EXPECT_EQ(PDECommon::commonAddPPDArray(nullptr, second), paramErr);
    EXPECT_EQ(PDECommon::commonAddPPDArray(&keywords, nullptr), noErr);
    EXPECT_EQ(keywords, QStringList());
}

TEST(ControlTable, ConstraintUnitsCountPopUpItemsFromOne)
{
    PDEControlItem popUp;
    popUp.kind = kPDEControlPopUp;
    EXPECT_EQ(PDECommon::commonConvertToCSTValue(&popUp, -1), 0);
    EXPECT_EQ(PDECommon::commonConvertToCSTValue(&popUp, 0), 1);
    EXPECT_EQ(PDECommon::commonConvertFromCSTValue(&popUp, 0), 0);
    EXPECT_EQ(PDECommon::commonConvertFromCSTValue(&popUp, 3), 2);
}

TEST(ControlTitles, TabsPastTheFourthRepeatTheLast)
{
    QTabWidget tabs;
    for (int i = 0; i < 6; ++i)
        tabs.addTab(new QWidget, QStringLiteral("kept"));
    PDEControlItem row{&tabs, kPDEControlTabView, "", "Image", nullptr, "", 0, nullptr};
    if (!pluginBundle()) { // the bundle can be set only once in a process
        PDECommon::commonSetControlTitleFromLocalizeString(&row);
        EXPECT_EQ(tabs.tabText(0), "kept") << "without the plug-in's bundle there are no titles";
    }
    setPluginBundle({QStringLiteral("/first"), {}});
    PDECommon::commonSetControlTitleFromLocalizeString(&row);
    const char *expected[] = {"Image", "Text", "Graphics", "Simulation", "Simulation", "Simulation"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(tabs.tabText(i), expected[i]);
    tabs.setTabText(0, "kept");
    for (const char *noTitle : {static_cast<const char *>(nullptr), "\xC3\xA9"}) {
        row.title = noTitle;
        PDECommon::commonSetControlTitleFromLocalizeString(&row);
        EXPECT_EQ(tabs.tabText(0), "kept");
    }
}

} // namespace
