// SPDX-License-Identifier: GPL-2.0-or-later
// The rules applied to live controls, and the evaluator on expressions that the rule table does not contain.
#include "RuleTable.h"

#include <gtest/gtest.h>

using bvtest::RuleTable;

namespace {

TEST(Rules, GrayWinsWhenGrayAndSeparationAreBothOn)
{
    RuleTable t;
    t.box("ColorAsGrayCheckBox")->setChecked(true);
    t.box("ColorSeparationCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    EXPECT_FALSE(t.box("ColorSeparationCheckBox")->isChecked());
    EXPECT_FALSE(t.enabled("ColorSeparationCheckBox"));
    EXPECT_TRUE(t.box("ColorAsGrayCheckBox")->isChecked());
    EXPECT_TRUE(t.enabled("ColorAsGrayCheckBox"));

    t.box("ColorAsGrayCheckBox")->setChecked(false);
    t.box("ColorSeparationCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    EXPECT_FALSE(t.enabled("ColorAsGrayCheckBox"));
    EXPECT_TRUE(t.enabled("ColorSeparationCheckBox"));
}

TEST(Rules, GrayGreysOutAllColorMenusAndKeepsTheirValues)
{
    RuleTable t;
    t.menu("ImageRGBSourcePopup")->setCurrentIndex(2);
    t.box("ColorAsGrayCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    for (const char *object : {"Image", "Text", "Graphics"}) {
        for (const char *setting :
             {"RGBSourcePopup", "RenderIntentPopup", "GrayTreatmentPopup", "DestinationProfilePopup"})
            EXPECT_FALSE(t.enabled(std::string(object) + setting)) << object << setting;
    }
    for (const char *name : {"SimulationSourcePopup", "SimulationRenderIntentPopup", "SimulationGrayTreatmentPopup"})
        EXPECT_FALSE(t.enabled(name)) << name;
    EXPECT_EQ(t.menu("ImageRGBSourcePopup")->currentIndex(), 2);
}

TEST(Rules, AFirstItemGreysOutWhatDependsOnIt)
{
    RuleTable t;
    vColorPresetConstraints(t.table());
    for (const char *object : {"Image", "Text", "Graphics"}) {
        const std::string name(object);
        EXPECT_FALSE(t.enabled(name + "RenderIntentPopup"));
        EXPECT_TRUE(t.enabled(name + "GrayTreatmentPopup")) << "the first destination leaves gray treatment";
        t.menu(name + "RGBSourcePopup")->setCurrentIndex(1);
        t.menu(name + "DestinationProfilePopup")->setCurrentIndex(1);
    }
    EXPECT_FALSE(t.enabled("SimulationGrayTreatmentPopup"));
    t.menu("SimulationSourcePopup")->setCurrentIndex(1);
    vColorPresetConstraints(t.table());
    for (const char *object : {"Image", "Text", "Graphics"}) {
        EXPECT_TRUE(t.enabled(std::string(object) + "RenderIntentPopup"));
        EXPECT_FALSE(t.enabled(std::string(object) + "GrayTreatmentPopup"));
    }
    EXPECT_TRUE(t.enabled("SimulationGrayTreatmentPopup"));
    EXPECT_TRUE(t.enabled("SimulationRenderIntentPopup"));
}

TEST(Rules, EconomyDoesNotGreyOutTextEdges)
{
    RuleTable t;
    t.menu("EdgeTypePopup")->setCurrentIndex(1);
    t.box("EconoModeCheckBox")->setChecked(true);
    vColorPresetConstraints(t.table());
    EXPECT_FALSE(t.enabled("ImageEdgeEnhancePopup"));
    EXPECT_TRUE(t.enabled("TextEdgeEnhancePopup"));
    EXPECT_FALSE(t.enabled("GraphicsEdgeEnhancePopup"));
    t.menu("EdgeTypePopup")->setCurrentIndex(0);
    vColorPresetConstraints(t.table());
    EXPECT_FALSE(t.enabled("TextEdgeEnhancePopup"));
}

TEST(Rules, EmptyTablesAndMissingRowsAreHarmless)
{
    PDEControlItem empty[] = {endControlItem()};
    vColorPresetConstraints(empty);
    vColorPresetConstraints(nullptr);
    EXPECT_EQ(bMatchCondition(0, empty), 0);

    // The table has the target but not the control of the condition. The condition is false, so the target is enabled.
    QPushButton button;
    button.setEnabled(false);
    PDEControlItem lone[] = {
        {&button, kPDEControlButton, "", nullptr, nullptr, "GoToAdvancedOptionsButton", 0, nullptr}, endControlItem()};
    vColorPresetConstraints(lone);
    EXPECT_TRUE(button.isEnabled());
}

// Conditions on a check box that is on (value 1) and a menu with the third item selected (value 3).
TEST(Evaluator, OperatorsAndExpressions)
{
    RuleTable t;
    t.box("EconoModeCheckBox")->setChecked(true);
    t.menu("EdgeTypePopup")->setCurrentIndex(2);
    struct
    {
        int32_t operation, value;
        bool holds;
    } const comparisons[] = {
        {kCSTEqual, 3, true},         {kCSTEqual, 2, false},         {kCSTNotEqual, 2, true},
        {kCSTLess, 4, true},          {kCSTLess, 3, false},          {kCSTGreater, 2, true},
        {kCSTGreater, 3, false},      {kCSTLessEqual1, 3, true},     {kCSTLessEqual2, 2, false},
        {kCSTGreaterEqual1, 3, true}, {kCSTGreaterEqual2, 4, false}, {kCSTSet, 3, false},
    };
    for (const auto &row : comparisons) {
        const CSTCondition condition{"EdgeTypePopup", row.value, row.operation};
        EXPECT_EQ(bv::conditionHolds(condition, t.table()), row.holds) << row.operation << ' ' << row.value;
    }
    EXPECT_FALSE(bv::conditionHolds({"edgetypepopup", 3, kCSTEqual}, t.table()));

    const CSTCondition trueFalse[] = {{"EconoModeCheckBox", 1, kCSTEqual}, {"EconoModeCheckBox", 0, kCSTEqual}};
    std::vector<int32_t> long41(40, 1); // the first 40 tokens have no end token: the "or" after them is not read
    long41.insert(long41.end(), {kCSTOr, kCSTEnd});
    const CSTCondition falseTrue[] = {{"EconoModeCheckBox", 0, kCSTEqual}, {"EconoModeCheckBox", 1, kCSTEqual}};
    struct
    {
        const CSTCondition *conditions;
        int8_t count;
        std::vector<int32_t> expression;
        uint8_t result;
    } const rules[] = {
        {trueFalse, 2, {kCSTEnd}, 1},
        {trueFalse, 2, {0, 1, kCSTAnd, kCSTEnd}, 0},
        {falseTrue, 2, {0, 1, kCSTOr, kCSTEnd}, 1},
        {falseTrue, 2, {kCSTOpen, 0, 1, kCSTClose, kCSTOr, kCSTEnd}, 1},
        {falseTrue, 1, {0, 1, kCSTOr, kCSTEnd}, 0}, // a condition beyond the count is false
        {falseTrue, 0, {kCSTEnd}, 0},
        {trueFalse, 2, {kCSTAnd, kCSTEnd}, 0}, // a missing operand counts as false
        {falseTrue, 2, {999, kCSTOr, 1, kCSTOr, kCSTEnd}, 1},
        {falseTrue, 2, long41, 0},
    };
    for (const auto &row : rules) {
        const CSTRule rule{VRCHG, row.count, row.conditions, row.expression.data(), "", 0, kCSTEnd, 0, nullptr};
        EXPECT_EQ(bv::matchRule(rule, t.table()), row.result);
    }
}

} // namespace
