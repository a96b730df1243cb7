// Which window system the program asks Qt for.
#pragma once

#include "app/CommandLine.h"
#include "platform/Result.h"

#include <QByteArray>

namespace bv {

// The value of Qt's option -platform for this command line and environment; empty where the choice is left to Qt. A
// failure's sentence says that there is no display for the window. QT_QPA_PLATFORM, where set, decides alone.
Result<QByteArray> windowSystem(const CommandLine &line);

} // namespace bv
