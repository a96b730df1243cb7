// SPDX-License-Identifier: GPL-2.0-or-later
// Which window system the program asks Qt for.
#pragma once

#include "app/CommandLine.h"
#include "platform/Result.h"

#include <QByteArray>

namespace bv {

// The value of Qt's option -platform for this command line and environment; empty where the choice is left to Qt. A
// failure means that there is no display for the window. If QT_QPA_PLATFORM is set, it alone decides.
Result<QByteArray> windowSystem(const CommandLine &line);

} // namespace bv
