// SPDX-License-Identifier: GPL-2.0-or-later
// QL70Resolve MILLISECONDS NAME TYPE DOMAIN: prints "ADDRESS PORT" of a Bonjour service. A process of its own, because
// the library waits for a daemon that hangs, and for a message bus that hangs without end; the plug-in's host must not.
// Exit status: 0 found, 1 not found, 2 wrong arguments. The time limit ends it by SIGALRM, also when its parent is
// gone.
#include "platform/FileDescriptor.h"
#include "resolver/ServiceLookup.h"

#include <charconv>
#include <csignal>
#include <string_view>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr int kArguments = 5; // with the program's name
constexpr long kMostMilliseconds = 60L * 1000;

// Ends this process after the time, whatever it then waits for, and whatever its parent did to the signal.
bool endAfter(std::string_view milliseconds)
{
    long time = 0;
    const auto parsed = std::from_chars(milliseconds.begin(), milliseconds.end(), time);
    if (parsed.ec != std::errc() || parsed.ptr != milliseconds.end() || time < 1 || time > kMostMilliseconds)
        return false;
    sigset_t alarm;
    sigemptyset(&alarm);
    sigaddset(&alarm, SIGALRM);
    std::signal(SIGALRM, SIG_DFL);
    const itimerval once = {{0, 0}, {time / 1000, time % 1000 * 1000}};
    return sigprocmask(SIG_UNBLOCK, &alarm, nullptr) == 0 && setitimer(ITIMER_REAL, &once, nullptr) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != kArguments || !endAfter(argv[1]))
        return 2;
    const std::string line = bv::lookUpService(argv[2], argv[3], argv[4]);
    return !line.empty() && bv::writeAll(STDOUT_FILENO, line) ? 0 : 1;
}
