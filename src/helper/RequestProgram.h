// SPDX-License-Identifier: GPL-2.0-or-later
// Common parts of QL70Helper and QL70Walk: read one request from the command line, print one verdict.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Answers a request of a caller.
using Answer = Outcome (*)(std::string_view name, RequestArguments arguments, const Caller &caller);

// The main function of both programs. Prepares the process, reads the request, prints the answer line, and returns the
// exit status. `sequenceProcess` is the process that owns the request's write sequence.
int runRequestProgram(int argc, char **argv, pid_t sequenceProcess, Answer answer);

} // namespace bv
