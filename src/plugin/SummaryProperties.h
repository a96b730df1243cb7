// SPDX-License-Identifier: GPL-2.0-or-later
// Tells a dialog by properties of the controls which item of the summary and which option of the PPD each one stands
// for (see HostProtocol.h).
#pragma once

#include "common/PDEControlItem.h"

class QWidget;

namespace bv {

// Sets the name and the group of each control in the table that has an item in the summary. A control's group is the
// title of the tab or group box around it in the view, else "General".
void nameSummaryControls(PDEControlTable table, const QWidget *view);

// Sets why a setting has no effect, whether its pane has been shown since or not.
void explainSummaryControls(PDEControlTable table);

// Sets which choices the job will have in place of those in the advanced pane. Arguments as in
// AdvancedColorOptions::changeItemAccodingQuickColor.
void tellOverruledOptions(PDEControlTable table, int16_t quickColor, int16_t eco);

} // namespace bv
