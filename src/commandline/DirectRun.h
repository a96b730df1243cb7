// SPDX-License-Identifier: GPL-2.0-or-later
// Prints, sums up or lists, without a window.
#pragma once

#include "commandline/DirectRequest.h"

namespace bv {

class PanelLoader;

// Exit statuses; docs/command-line.md and --help tell them.
inline constexpr int kDirectFailed = 1;   // the job was not printed, or the answer could not be written
inline constexpr int kDirectBadStart = 2; // a wrong argument, option, choice or file, or no such queue
inline constexpr int kDirectRefused = 3;  // the rules are against the choices

// Does what the request asks for, writes to standard output and standard error, and returns the exit status. The
// application object must exist and the plug-in must be loaded. Waits for the print server, as a batch does.
int runDirect(const DirectRequest &request, PanelLoader &loader);

} // namespace bv
