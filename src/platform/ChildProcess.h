// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a program as a child process and collects its output, or starts a program that runs on by itself. Free of Qt and
// libcups.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <sys/types.h>

namespace bv {

struct ChildResult
{
    std::string output; // everything that the child wrote to standard output
    int exitCode = -1;  // its exit status, or -1 when a signal ended it
};

// Runs `program` (a real path) with `arguments`, reads its standard output to the end and waits until it exits. With a
// limit, a child whose output has not ended by then is killed; what it wrote before is in the result. The child
// inherits the environment; its standard input is empty. Its standard error goes to the diagnostic log, line by line,
// after it has ended. Nothing, with the reason in the diagnostic log, when the child cannot be started, or when the
// dialog no longer wants to wait for it (platform/PanelWait.h); then it is ended, and waited for.
std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments,
                                    std::optional<std::chrono::milliseconds> limit = std::nullopt);

// Starts `program` (a real path) in a session of its own and does not wait for it. It inherits only the environment and
// outlives this process. False, with the reason in the diagnostic log, when it cannot be started.
bool startProgram(const std::string &program);

// The descriptors that a worker inherits, at the numbers 0, 1 and 3. Its standard error is discarded.
struct WorkerDescriptors
{
    int input = -1;
    int output = -1;
    int third = -1;
};

// Starts `program` (a real path) without arguments and returns its process id at once. It inherits the environment. The
// caller ends it and waits for it. Nothing, with the reason in the diagnostic log, when it cannot be started.
std::optional<pid_t> startWorker(const std::string &program, const WorkerDescriptors &descriptors);

} // namespace bv
