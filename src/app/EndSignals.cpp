// SPDX-License-Identifier: GPL-2.0-or-later
// A handler may do next to nothing, so it wakes a thread.
#include "app/EndSignals.h"

#include "queues/BackgroundCall.h"
#include "queues/CancelAtEnd.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace bv {

namespace {

constexpr std::array<int, 3> kEndSignals = {SIGINT, SIGTERM, SIGHUP};
int wakeDescriptor = -1;
pid_t ownProcess = -1;

void wake(int number)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    // A child has this handler and the pipe until it becomes another program.
    if (getpid() == ownProcess && write(wakeDescriptor, &byte, 1) < 0)
        _exit(128 + number);
    errno = error;
}

void endAfterSignal(int descriptor)
{
    unsigned char number = 0;
    while (read(descriptor, &number, 1) != 1) {
        if (errno != EINTR)
            return;
    }
    cancelForEnd();
    detachedThreadsEnded(); // waits for a moment
    std::signal(number, SIG_DFL);
    kill(ownProcess, number);
}

} // namespace

void endInOrderBySignals()
{
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    wakeDescriptor = ends[1];
    ownProcess = getpid();
    try {
        std::thread(endAfterSignal, ends[0]).detach();
    } catch (const std::system_error &) {
        return;
    }
    for (const int number : kEndSignals) {
        struct sigaction present = {};
        sigaction(number, nullptr, &present);
        if (present.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = wake;
        action.sa_flags = SA_RESTART;
        sigaction(number, &action, nullptr);
    }
}

} // namespace bv
