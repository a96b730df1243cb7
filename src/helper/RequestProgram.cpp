// SPDX-License-Identifier: GPL-2.0-or-later
// Runs one request from the command line.
#include "helper/RequestProgram.h"

#include "helper/Diagnostics.h"
#include "helper/ProcessStart.h"
#include "platform/FileDescriptor.h"

#include <cerrno>
#include <exception>
#include <unistd.h>
#include <vector>

namespace bv {

int runRequestProgram(int argc, char **argv, pid_t sequenceProcess, Answer answer)
{
    if (!prepareProcess())
        return kExitRefused;
    const std::vector<std::string_view> words(argv, argv + argc);
    if (words.size() < 2) {
        complain("no request");
        return kExitUnknown;
    }
    const std::string_view name = words[1];
    const Caller caller(sequenceProcess);
    Outcome outcome = outcomeOf(false);
    try {
        outcome = answer(name, RequestArguments(words).subspan(2), caller);
    } catch (const std::exception &failure) {
        complain(failure.what());
    }
    if (!writeAll(STDOUT_FILENO, answerLine(name, outcome)))
        complain("cannot print the answer", errno);
    return outcome.exitStatus;
}

} // namespace bv
