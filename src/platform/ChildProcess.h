// Runs a program as a child process and collects what it prints. Free of Qt and libcups.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace bv {

struct ChildResult
{
    std::string output; // everything that the child wrote to standard output
    int exitCode = -1;  // its exit status, or -1 when a signal ended it
};

// Starts `program` (a real path) with `arguments` behind it, reads its standard output to the end and waits until it
// exits; there is no time limit. Environment, standard input and standard error are inherited. Nothing when the pipe
// or the child cannot be made; the reason goes to the diagnostic log.
std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments);

} // namespace bv
