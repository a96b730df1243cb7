// Child processes by posix_spawn(3) with a pipe on standard output.
#include "platform/ChildProcess.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace bv {

namespace {

class SpawnActions
{
public:
    SpawnActions() { m_made = posix_spawn_file_actions_init(&m_actions) == 0; }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;
    ~SpawnActions()
    {
        if (m_made)
            posix_spawn_file_actions_destroy(&m_actions);
    }
    bool standardOutputTo(int fd)
    {
        return m_made && posix_spawn_file_actions_adddup2(&m_actions, fd, STDOUT_FILENO) == 0;
    }
    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions;
    bool m_made = false;
};

void report(const std::string &program, const char *what, int error)
{
    diagnosticLine(formatLog("%@: %@: %@", {program, what, std::strerror(error)}));
}

// The exit status; -1 for a child that a signal ended, or whose status the host has thrown away (ignored SIGCHLD).
int waitFor(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::optional<ChildResult> run(const std::string &program, std::span<const std::string> arguments)
{
    std::vector<char *> words;
    words.push_back(const_cast<char *>(program.c_str()));
    for (const std::string &argument : arguments)
        words.push_back(const_cast<char *>(argument.c_str()));
    words.push_back(nullptr);

    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        report(program, "no pipe", errno);
        return std::nullopt;
    }
    FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    SpawnActions actions;
    if (!actions.standardOutputTo(writeEnd.get())) {
        report(program, "no child", ENOMEM);
        return std::nullopt;
    }
    pid_t child = -1;
    if (const int error = posix_spawn(&child, program.c_str(), actions.get(), nullptr, words.data(), environ)) {
        report(program, "not started", error);
        return std::nullopt;
    }
    writeEnd.reset();
    // First read, then wait: a child that prints more than the pipe holds would never end the other way round.
    ChildResult result;
    try {
        readToEnd(readEnd.get(), &result.output); // what came before a failure counts
    } catch (const std::bad_alloc &) {
        readEnd.reset(); // the child meets a closed pipe and ends
        waitFor(child);
        throw;
    }
    result.exitCode = waitFor(child);
    return result;
}

} // namespace

std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments)
{
    return withoutThrowing(std::nullopt, [&] { return run(program, arguments); });
}

} // namespace bv
