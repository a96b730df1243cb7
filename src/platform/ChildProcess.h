// Runs a program as a child process and collects what it prints, or starts it and lets it go. Free of Qt and libcups.
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
// exits; there is no time limit. The environment is inherited, standard input is empty, and each line of standard error
// goes to the diagnostic log when the child has ended. Nothing when the pipe or the child cannot be made; the reason
// goes to the diagnostic log.
std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments);

// Starts `program` (a real path) in a session of its own and lets it go: nothing of this process but the environment
// reaches it, and it goes on when this process ends. False when it cannot be started; the reason goes to the diagnostic
// log.
bool startProgram(const std::string &program);

} // namespace bv
