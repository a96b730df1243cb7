// SPDX-License-Identifier: GPL-2.0-or-later
// Reasons shown for greyed-out controls, and their removal.
#include "RuleTable.h"
#include "colorrules/GreyedReasons.h"
#include "support/MarkupProbe.h"

#include <gtest/gtest.h>

namespace {

TEST(GreyedReasons, NameTheCurrentConditionAndDisappearWithIt)
{
    bvtest::RuleTable t;
    t.box("ColorAsGrayCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    bv::explainGreyedControls(t.table());
    const QWidget *intent = t.control("ImageRenderIntentPopup");
    EXPECT_EQ(intent->toolTip(), "Not available while ColorAsGrayCheckBox is on. Turn it off to use this setting.\n"
                                 "Not available while ImageRGBSourcePopup is set to first. "
                                 "Choose another to use this setting.");
    EXPECT_EQ(intent->accessibleDescription(), intent->toolTip());
    EXPECT_EQ(t.control("GoToAdvancedOptionsButton")->toolTip(),
              "Available only while QuickColorPopup is set to fourth. Choose that to use this setting.");

    // The item's text comes from the PPD.
    t.menu("ImageRGBSourcePopup")->setItemText(0, bvtest::kMarkup);
    bv::explainGreyedControls(t.table());
    EXPECT_TRUE(intent->accessibleDescription().contains(bvtest::kMarkup));
    EXPECT_FALSE(bvtest::showsImage(intent->toolTip())) << qPrintable(intent->toolTip());

    t.menu("ImageRGBSourcePopup")->setCurrentIndex(1);
    bv::explainGreyedControls(t.table());
    EXPECT_EQ(intent->toolTip(), "Not available while ColorAsGrayCheckBox is on. Turn it off to use this setting.");

    t.box("ColorAsGrayCheckBox")->setChecked(false);
    vColorPresetConstraints(t.table());
    bv::explainGreyedControls(t.table());
    EXPECT_TRUE(intent->toolTip().isEmpty());
    EXPECT_TRUE(intent->accessibleDescription().isEmpty());
}

TEST(GreyedReasons, TheBoxThatSwitchesSettingsOffIsFoundWithTheirNumber)
{
    bvtest::RuleTable t;
    EXPECT_EQ(bv::switchedOffByBox(nullptr).box, nullptr);
    EXPECT_EQ(bv::switchedOffByBox(t.table()).box, nullptr);
    t.box("ColorAsGrayCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    int greyed = 0;
    for (const PDEControlItem *row = t.table(); row->kind != kPDEControlEnd; ++row)
        greyed += row->control->isEnabled() ? 0 : 1;
    const bv::SwitchedOff found = bv::switchedOffByBox(t.table());
    ASSERT_NE(found.box, nullptr);
    EXPECT_STREQ(found.box->identifier, "ColorAsGrayCheckBox");
    EXPECT_GT(found.settings, 5);
    EXPECT_LE(found.settings, greyed);
}

} // namespace
