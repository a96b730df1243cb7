// SPDX-License-Identifier: GPL-2.0-or-later
// The record of a control table: one control on the screen, the PPD option it is bound to, and its texts.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class QWidget;

// Control kinds. The log shows the numbers, so they must not change. 1033 and 1038 are unused.
enum PDEControlKind : int32_t {
    kPDEControlEnd = 1032,
    kPDEControlText = 1034,
    kPDEControlPopUp = 1035,
    kPDEControlCheckBox = 1036,
    kPDEControlValueReset = 1037,
    kPDEControlButton = 1039,
    kPDEControlTabView = 1040,
};

// One choice of a PPD option, in this order: option keyword, default choice keyword, choice keyword, display text,
// "ConflictTrue" or "ConflictFalse".
using PPDChoiceEntry = std::array<QString, 5>;
using PPDChoiceArray = std::vector<PPDChoiceEntry>;

struct PDEControlItem
{
    QWidget *control = nullptr;        // owned by the view; most loops stop at a null control
    int32_t kind = kPDEControlEnd;     // a PDEControlKind
    const char *ppdKey = "";           // PPD main keyword; empty when no option is bound
    const char *title = nullptr;       // localization key of the control's own title
    const char *summaryName = nullptr; // localization key of the item's name in the summary; null: not in the summary
    const char *identifier = "";       // name that the rules use for the row; unique across both views
    int16_t profileKind = 0;           // class of profiles added to the menu: 1 RGB source, 2 destination, 3 simulation
    std::shared_ptr<const PPDChoiceArray> ppdChoices; // null until built, and for rows without ppdKey
};

// Pointer to the first record of a table that ends with an end record. Null when there is no table.
using PDEControlTable = PDEControlItem *;

// The record that ends every table.
inline PDEControlItem endControlItem()
{
    return {};
}
