// SPDX-License-Identifier: GPL-2.0-or-later
// The picture of a printer with a mark for its state.
#pragma once

#include "printers/PrinterState.h"

#include <QIcon>

namespace bv {

// Drawn once for each state. Readable on light and dark ground; marks differ by shape as well as by color.
QIcon printerIcon(PrinterState state);

} // namespace bv
