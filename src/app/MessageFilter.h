// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps Qt's remarks about its environment off standard error, except the reason why no window can be opened.
#pragma once

namespace bv {

// Call before the application object is made. If Qt then finds no window system, the program ends with status 2 and one
// line on standard error that says why. Other messages are passed on.
void installMessageFilter();

} // namespace bv
