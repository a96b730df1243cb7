// SPDX-License-Identifier: GPL-2.0-or-later
// What "bvprint --agent WORD" does.
#pragma once

#include <QString>

namespace bv {

// "on" and "off": writes or removes the autostart file, starts the agent at once where there is a display, or ends it.
// Says what it did. Returns the program's exit status. Needs a QCoreApplication.
int switchAgent(const QString &word);

// "run": watches until the session or the process ends. Returns the program's exit status. Needs a QApplication.
int runAgent();

} // namespace bv
