// SPDX-License-Identifier: GPL-2.0-or-later
// Where the user's programs keep state between runs.
#pragma once

#include <QString>

namespace bv {

// The user's state folder (freedesktop.org, XDG base directories): XDG_STATE_HOME where that is an absolute path, else
// ~/.local/state. It need not exist.
QString stateFolder();

} // namespace bv
