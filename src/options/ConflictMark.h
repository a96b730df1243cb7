// SPDX-License-Identifier: GPL-2.0-or-later
// The mark that people see at a control whose choice is in conflict with another one.
#pragma once

class QWidget;

namespace bv {

// Puts the mark on a pop-up or button, or takes it away. Other controls have no place for it. Sends no signal of the
// control's. Call it again after another choice.
void markConflict(QWidget &control, bool isInConflict);

} // namespace bv
