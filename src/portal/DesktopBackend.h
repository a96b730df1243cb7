// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the desktop's own back end for printing.
#pragma once

#include <QString>

namespace bv {

// The folder in which back ends are described.
QString portalFolder();

// The name on the bus of the back end that prints where ours is switched off, by the portal's own rule: the first
// desktop in `desktops` (as in XDG_CURRENT_DESKTOP) that a back end is for, else any back end. Files are looked at in
// the order of their names. Empty when there is none.
QString desktopBackend(const QString &folder, const QString &desktops);

} // namespace bv
