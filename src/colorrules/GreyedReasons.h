// SPDX-License-Identifier: GPL-2.0-or-later
// Explains greyed-out controls: the tool tip and the accessible description say why a control is not available and how
// to make it available again.
#pragma once

#include "common/PDEControlItem.h"

namespace bv {

// Sets the texts of all controls in the table that a rule can grey out, and removes them from controls that are
// available. Call it after the rules were applied to the same table.
void explainGreyedControls(PDEControlTable table);

// Applies the rules to a table and updates the texts.
void applyOptionRules(PDEControlTable table);

} // namespace bv
