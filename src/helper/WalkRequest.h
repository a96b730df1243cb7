// The request to walk the printer's profile table: what makes it one, and the program that carries it out.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Looks at the arguments of a walk: the model, the login name, then the eight words. Words that are not exactly those
// of the request are no request; a login name that the caller may not act for is refused. Returns that outcome; nothing
// where the walk may be run.
std::optional<Outcome> walkRefusal(const Caller &caller, RequestArguments arguments);

// The walk as the helper's table has it. A walk that may be run replaces this process by QL70Walk, the program beside
// this one, with the same command line; process id, parent and standard output stay what they were. Returns a refusal,
// also where that program cannot be started.
Outcome answerWalk(const Caller &caller, RequestArguments arguments);

} // namespace bv
