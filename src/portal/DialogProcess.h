// SPDX-License-Identifier: GPL-2.0-or-later
// The process of one dialog. The plug-in, and whatever a panel waits for, is so kept to one dialog, and the service
// ends it whenever it has to.
#pragma once

namespace bv {

// Reads one request from standard input, carries it out, and writes the answer to standard output. Ends early when
// standard input ends. Returns the program's exit status. There must be no application object.
int runDialogProcess(char *program);

} // namespace bv
