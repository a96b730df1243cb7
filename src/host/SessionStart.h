// Makes the session that a command line asks for: from a PPD file alone, or from a queue of the print server.
#pragma once

#include "host/CommandLine.h"
#include "host/QueueSession.h"

namespace bv {

// With --ppd no print server is asked. The sentence of a failure says what to do about it.
Result<std::unique_ptr<QueueSession>> startSession(const CommandLine &commandLine);

} // namespace bv
