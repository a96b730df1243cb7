// SPDX-License-Identifier: GPL-2.0-or-later
// Explains greyed-out controls: the tool tip and the accessible description say why a control is not available and how
// to make it available again.
#pragma once

#include "common/PDEControlItem.h"

#include <QString>

namespace bv {

// Sets the texts of all controls in the table that a rule can grey out, and removes them from controls that are
// available. Labels of greyed controls look greyed as well; they stay enabled. Call it after the rules were applied to
// the same table.
void explainGreyedControls(PDEControlTable table);

// Why the rules make a control of the table meaningless just now, in sentences for the user. Empty when they do not.
QString greyedReason(const PDEControlItem &row, PDEControlTable table);

// A check box that is on, and how many settings of the table it makes meaningless.
struct SwitchedOff
{
    const PDEControlItem *box = nullptr; // null: there is none
    int settings = 0;
};

// The first such box in the table; null gives none.
SwitchedOff switchedOffByBox(PDEControlTable table);

// Applies the rules to a table and updates the texts.
void applyOptionRules(PDEControlTable table);

} // namespace bv
