// QL70Helper: carries out one request of the print dialog and prints one line of verdict.
#include "helper/Caller.h"
#include "helper/Diagnostics.h"
#include "helper/ProcessStart.h"
#include "helper/RequestTable.h"

#include <cerrno>
#include <exception>
#include <span>
#include <unistd.h>
#include <vector>

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

int answerCommandLine(std::span<char *const> commandLine)
{
    const std::vector<std::string_view> words(commandLine.begin(), commandLine.end());
    if (words.size() < 2) {
        bv::complain("no request");
        return bv::kExitUnknown;
    }
    const std::string_view name = words[1];
    const bv::Caller caller(getppid());
    bv::Outcome outcome = bv::outcomeOf(false);
    try {
        outcome = bv::answerRequest(name, bv::RequestArguments(words).subspan(2), caller);
    } catch (const std::exception &failure) {
        bv::complain(failure.what());
    }
    if (!printAnswer(bv::answerLine(name, outcome)))
        bv::complain("cannot print the answer", errno);
    return outcome.exitStatus;
}

} // namespace

int main(int argc, char **argv)
{
    if (!bv::prepareProcess())
        return bv::kExitRefused;
    return answerCommandLine({argv, static_cast<size_t>(argc)});
}
