// Control tables: joining, constraint units, keywords, first filling, and the table of the Color Options pane.
#include "controls/ColorOptions.h"
#include "plugin/PanelLog.h"
#include "support/PaneFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

using bvtest::TestPpd;

namespace {

TEST(ControlTable, JoinsByKindAndEndsWithOneEndRecord)
{
    QLabel label;
    PDEControlItem first[] = {{&label, kPDEControlText, "", "A", nullptr, "a", 0, nullptr}, endControlItem()};
    // A row without a control stands before the end by kind: other walkers stop there, joining copies it.
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

// A pane without the interface file: its own controls under the outlets' names.
class ColorPane : public testing::Test
{
protected:
    ColorPane()
    {
        for (const char *name : {"menu_QuickColor", "menu_Brightness", "menu_EdgeStrength", "menu_BlackOverprint"})
            add<QComboBox>(name);
        for (const char *name :
             {"check_ColorAsGrayscale", "check_ColorSeparation", "check_EconomyPrint", "check_AutoTrapping"})
            add<QCheckBox>(name);
        for (const char *name : {"text_QuickColor", "text_Brightness", "text_Strength", "text_BlackOverprint"})
            add<QLabel>(name);
        add<QPushButton>("button_AdvanceColorOptions");
    }
    template <typename Control> void add(const char *name) { (new Control(&pane))->setObjectName(QLatin1String(name)); }
    ColorOptions pane;
    TestPpd ppd;
};

TEST_F(ColorPane, CountsFourteenRecordsAndFreesOnce)
{
    pane.setPPDFile(ppd.get());
    EXPECT_EQ(pane.getControlData(), nullptr);
    pane.createPDEControlTable();
    EXPECT_EQ(pane.getControlCount(), 14);
    EXPECT_EQ(_DEBUGControlTable(pane.getControlData()), 14);
    EXPECT_EQ(pane.getControlData()[0].ppdChoices->size(), 4U);
    EXPECT_EQ(pane.getControlData()[12].ppdChoices, nullptr);

    QStringList all;
    pane.createPPDKeyNSArray(&all);
    EXPECT_EQ(all.size(), 13);
    QStringList bound;
    EXPECT_EQ(pane.addPPDArray(&bound), noErr);
    EXPECT_EQ(bound.size(), 8);
    EXPECT_EQ(PDECommon::commonAddPPDArray(nullptr, pane.getControlData()), paramErr);
    EXPECT_EQ(PDECommon::commonAddPPDArray(&bound, nullptr), noErr);

    pane.deallocPDEControlTable();
    EXPECT_EQ(pane.getControlData(), nullptr);
    pane.deallocPDEControlTable();
}

TEST_F(ColorPane, SurvivesWithoutPpd)
{
    pane.createPDEControlTable();
    pane.createPDEItemForPPDKey();
    pane.defaultFromPPDInfo();
    EXPECT_EQ(pane.getQuickColorValue(), -1);
    EXPECT_EQ(pane.findChild<QLabel *>("text_Strength")->text(), "EdgeType:");
    EXPECT_EQ(pane.findChild<QCheckBox *>("check_EconomyPrint")->text(), "EconoMode");
}

TEST(ControlTitles, TabsPastTheFourthRepeatTheLast)
{
    QTabWidget tabs;
    for (int i = 0; i < 6; ++i)
        tabs.addTab(new QWidget, QString());
    PDEControlItem row{&tabs, kPDEControlTabView, "", "Image", nullptr, "", 0, nullptr};
    PDECommon::commonSetControlTitleFromLocalizeString(&row);
    const char *expected[] = {"Image", "Text", "Graphics", "Simulation", "Simulation", "Simulation"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(tabs.tabText(i), expected[i]);
    row.title = nullptr;
    tabs.setTabText(0, "kept");
    PDECommon::commonSetControlTitleFromLocalizeString(&row);
    EXPECT_EQ(tabs.tabText(0), "kept");
}

} // namespace
