// The record of a control table: one on-screen control, the PPD option that it stands for, and its texts.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class QWidget;

// Control kinds. Log readers rely on the numbers; 1033 and 1038 stand for nothing.
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
    QWidget *control = nullptr;        // borrowed from the view; null ends a table for most walkers
    int32_t kind = kPDEControlEnd;     // a PDEControlKind
    const char *ppdKey = "";           // PPD main keyword; empty: no option is bound
    const char *title = nullptr;       // localisation key of the control's own title
    const char *summaryName = nullptr; // localisation key of the item's name in the summary; null: not in the summary
    const char *identifier = "";       // the name by which the rules find the row; unique across both views
    int16_t profileKind = 0;           // 1 RGB source, 2 destination, 3 simulation: menu extended by profiles
    std::shared_ptr<const PPDChoiceArray> ppdChoices; // null until built, and for rows without ppdKey
};

// Pointer to the first record; the end record is the last. Null where there is no table.
using PDEControlTable = PDEControlItem *;

// The record that ends every table.
inline PDEControlItem endControlItem()
{
    return {};
}
