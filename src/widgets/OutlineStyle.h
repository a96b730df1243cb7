// SPDX-License-Identifier: GPL-2.0-or-later
// Draws outlines where the style of the desktop makes them of a darker shade of the window's color, and that is black.
#pragma once

namespace bv {

// From now on all windows have outlines with every palette. Call it once there is a QApplication; a second call, or one
// with a style that draws outlines by itself, does nothing.
void useOutlines();

} // namespace bv
