// From a command line to a line of verdict.
#include "helper/RequestProgram.h"

#include "helper/Diagnostics.h"
#include "helper/ProcessStart.h"

#include <cerrno>
#include <exception>
#include <unistd.h>
#include <vector>

namespace bv {

namespace {

bool printAnswer(std::string_view line)
{
    while (!line.empty()) {
        const ssize_t written = write(STDOUT_FILENO, line.data(), line.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        line.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

} // namespace

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
    if (!printAnswer(answerLine(name, outcome)))
        complain("cannot print the answer", errno);
    return outcome.exitStatus;
}

} // namespace bv
