// What the helper's two programs have in common: one request on the command line, one line of verdict.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Answers a request by its name and arguments for a caller.
using Answer = Outcome (*)(std::string_view name, RequestArguments arguments, const Caller &caller);

// The main function of such a program: prepares the process, takes the request from the command line, prints the answer
// line and returns the exit status. sequenceProcess is the process that a write sequence of the request belongs to.
int runRequestProgram(int argc, char **argv, pid_t sequenceProcess, Answer answer);

} // namespace bv
