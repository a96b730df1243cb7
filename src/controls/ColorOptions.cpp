// SPDX-License-Identifier: GPL-2.0-or-later
// The Color Options pane's control table.
#include "controls/ColorOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <array>

namespace {

// clang-format off
constexpr std::array<ControlRow, 13> kRows{{
    // outlet                     kind                 ppdKey               title                     summaryName           identifier                    profileKind
    {"menu_QuickColor",           kPDEControlPopUp,    "BVQuickColor",      nullptr,                  "Quick Color",        "QuickColorPopup",            0},
    {"menu_Brightness",           kPDEControlPopUp,    "BVBrightness",      nullptr,                  "Brightness",         "",                           0},
    {"check_ColorAsGrayscale",    kPDEControlCheckBox, "BVColorAsGray",     "Color as Grayscale",     "Color as Grayscale", "ColorAsGrayCheckBox",        0},
    {"check_ColorSeparation",     kPDEControlCheckBox, "BVColorSeparation", "Color Separation",       "Color Separation",   "ColorSeparationCheckBox",    0},
    {"check_EconomyPrint",        kPDEControlCheckBox, "BVEconoMode",       "EconoMode",              "EconoMode",          "EconoModeCheckBox",          0},
    {"menu_EdgeStrength",         kPDEControlPopUp,    "BVEdgeType",        nullptr,                  "EdgeType",           "EdgeTypePopup",              0},
    {"check_AutoTrapping",        kPDEControlCheckBox, "BVAutoTrapping",    "AutoTrapping",           "AutoTrapping",       "AutoTrappingCheckBox",       0},
    {"menu_BlackOverprint",       kPDEControlPopUp,    "BVBlackOverprint",  nullptr,                  "BlackOverprint",     "BlackOverprintPopup",        0},
    {"text_QuickColor",           kPDEControlText,     "",                  "Quick Color:",           nullptr,              "",                           0},
    {"text_Brightness",           kPDEControlText,     "",                  "Brightness:",            nullptr,              "",                           0},
    {"text_Strength",             kPDEControlText,     "",                  "EdgeType:",              nullptr,              "",                           0},
    {"text_BlackOverprint",       kPDEControlText,     "",                  "BlackOverprint:",        nullptr,              "",                           0},
    {"button_AdvanceColorOptions", kPDEControlButton,  "",                  "Advanced Color Options", nullptr,              "GoToAdvancedOptionsButton",  0},
}};
// clang-format on

} // namespace

ColorOptions::ColorOptions(QWidget *parent) : ControlTableView(kRows, parent) {}

void ColorOptions::createPPDKeyNSArray(QStringList *array) const
{
    appendAllKeys(array);
}

int32_t ColorOptions::getQuickColorValue() const
{
    const auto *menu = outlet<QComboBox>("menu_QuickColor");
    return menu ? int16_t(menu->currentIndex()) : -1;
}

int32_t ColorOptions::getEconoModeValue() const
{
    const auto *box = outlet<QCheckBox>("check_EconomyPrint");
    return box && box->isChecked();
}
