// Says in a greyed-out control's tool tip and accessible description why it is not available and what brings it back.
#pragma once

#include "common/PDEControlItem.h"

namespace bv {

// Works the texts of all controls that the rules can grey out from the conditions that hold now, and takes the text
// away from those that are available. To be called after a pass of the rules over the same table.
void explainGreyedControls(PDEControlTable table);

// A pass of the rules over a table, and the texts that go with it.
void applyOptionRules(PDEControlTable table);

} // namespace bv
