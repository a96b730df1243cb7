// SPDX-License-Identifier: GPL-2.0-or-later
// Ends the program in order when Ctrl-C, the end of the session or another program ends it.
#pragma once

namespace bv {

// From now on SIGINT, SIGTERM and SIGHUP first cancel the job that is being sent, so that no part of it stays on the
// print server, and then end the program as they always do. A signal that is ignored stays so. Call it once.
void endInOrderBySignals();

} // namespace bv
