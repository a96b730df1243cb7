// SPDX-License-Identifier: GPL-2.0-or-later
// The request to walk the printer's profile table: its checks, and the start of the program that runs it.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Checks the arguments of a walk: the model, the login name, then eight fixed words. Returns an unknown request for
// wrong words, and a refusal for a login name that the caller may not act for. Returns nothing when the walk may run.
std::optional<Outcome> walkRefusal(const Caller &caller, RequestArguments arguments);

// Runs a walk: replaces this process by QL70Walk, the program in the same folder, with the same command line. Process
// id, parent and standard output stay the same. Returns only a refusal, also when QL70Walk cannot be started.
Outcome answerWalk(const Caller &caller, RequestArguments arguments);

} // namespace bv
