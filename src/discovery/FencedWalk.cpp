// SPDX-License-Identifier: GPL-2.0-or-later
// The child that walks, and the record that it hands over.
#include "discovery/FencedWalk.h"

#include "discovery/ProfileSpool.h"
#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/ProcessFence.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <span>
#include <string>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <syslog.h>
#include <type_traits>
#include <unistd.h>

namespace bv {

namespace {

constexpr size_t kMostPrinted = size_t{256} << 10;
constexpr size_t kMemory = size_t{256} << 20; // a walk of 500 rows takes 30 MB, most of it libraries
constexpr unsigned kProcessorSeconds = 120;
constexpr int32_t kNotWalked = 1;
constexpr int32_t kLowestStatus = -3; // of the library's argument parser
constexpr int32_t kHighestStatus = 2;

// What the child hands over. The text that it printed follows.
struct Report
{
    int32_t status;
    int32_t variables;
    std::array<char, sizeof(sDEBUGmsg)> message;
    ProfileList spool;
};
static_assert(std::is_trivially_copyable_v<Report>);

struct ReceivedReport
{
    Report report;
    std::string printed;
};

using Clock = std::chrono::steady_clock;

// ---- The child ----

// Standard output becomes a file in memory, and every other descriptor but the pipe is closed.
FileDescriptor keepOnlyStreamsAnd(int pipe)
{
    FileDescriptor printed(memfd_create("printed", 0));
    if (!printed || dup2(printed.get(), STDOUT_FILENO) < 0)
        _exit(kNotWalked);
    const int keep = STDERR_FILENO + 1;
    printed.reset();
    if (pipe != keep && dup2(pipe, keep) < 0)
        _exit(kNotWalked);
    close_range(static_cast<unsigned>(keep) + 1, ~0U, 0);
    return FileDescriptor(keep);
}

void raiseWalkFence()
{
    const Fence fence = raiseFence({.sockets = true, .memoryBytes = kMemory, .cpuSeconds = kProcessorSeconds});
    if (!fence.files || !fence.calls)
        diagnosticLine("Profile walk: this kernel lacks a part of the fence");
}

[[noreturn]] void walkAndReport(int pipe, pid_t parent, int32_t argc, char **argv, const WalkLimits &limits)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(kNotWalked);
    const FileDescriptor out = keepOnlyStreamsAnd(pipe);
    const rlimit fileSize = {kMostPrinted, kMostPrinted};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &fileSize);
    // Behind the fence the log can be written, but not opened.
    tzset();
    openlog(nullptr, LOG_NDELAY, LOG_USER);

    const int32_t status = walkPrinter(argc, argv, limits, raiseWalkFence);

    std::fflush(stdout);
    Report report = {.status = status, .variables = numprinted, .message = {}, .spool = PlistForSpool};
    std::memcpy(report.message.data(), sDEBUGmsg, sizeof(sDEBUGmsg));
    std::string bytes(reinterpret_cast<const char *>(&report), sizeof(report));
    const off_t printed = lseek(STDOUT_FILENO, 0, SEEK_END);
    if (printed > 0)
        bytes += readAt(STDOUT_FILENO, 0, static_cast<size_t>(printed)).value_or("");
    _exit(writeAll(out.get(), bytes) ? 0 : kNotWalked);
}

// ---- The parent ----

// Trusts nothing in the bytes. Every record of a spool is possible, since a printer may send anything.
std::optional<ReceivedReport> parse(const std::string &bytes)
{
    ReceivedReport received;
    if (bytes.size() < sizeof(Report) || bytes.size() > sizeof(Report) + kMostPrinted)
        return std::nullopt;
    std::memcpy(&received.report, bytes.data(), sizeof(Report));
    if (received.report.status < kLowestStatus || received.report.status > kHighestStatus)
        return std::nullopt;
    received.printed = bytes.substr(sizeof(Report));
    return received;
}

int32_t noResult(const char *why)
{
    diagnosticLine(std::string("Profile walk: ") + why);
    return kNotWalked;
}

} // namespace

int32_t walkBehindFence(int32_t argc, char **argv, const WalkLimits &limits)
{
    vSpoolPlist(nullptr, 0, nullptr, 1);
    const Clock::time_point end = Clock::now() + limits.time + limits.beforeAndAfter;
    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return noResult("no pipe");
    FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    std::fflush(stdout);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0)
        return noResult("no process");
    if (child == 0)
        walkAndReport(writeEnd.get(), parent, argc, argv, limits);
    writeEnd.reset();
    std::string bytes;
    const bool ended = readToEndBefore(readEnd.get(), &bytes, sizeof(Report) + kMostPrinted, end);
    // It has nothing more to say, so it needs not be asked for its exit status.
    kill(child, SIGKILL);
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    const std::optional<ReceivedReport> received = ended ? parse(bytes) : std::nullopt;
    if (!received)
        return noResult(ended ? "the process that walks ended without a result" : "the process that walks did not end");

    PlistForSpool = received->report.spool;
    numprinted = received->report.variables;
    std::memcpy(sDEBUGmsg, received->report.message.data(), sizeof(sDEBUGmsg));
    sDEBUGmsg[sizeof(sDEBUGmsg) - 1] = '\0';
    std::fwrite(received->printed.data(), 1, received->printed.size(), stdout);
    return received->report.status;
}

} // namespace bv
