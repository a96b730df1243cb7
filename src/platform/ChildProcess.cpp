// Child processes by posix_spawn(3) with a pipe on standard output.
#include "platform/ChildProcess.h"

#include "platform/Log.h"

#include <array>
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

class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() { reset(); }
    int get() const { return m_fd; }
    void reset()
    {
        if (m_fd >= 0)
            close(m_fd);
        m_fd = -1;
    }

private:
    int m_fd;
};

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

// Reads to the end of the pipe. An error ends it as the end does; what came before counts.
std::string readToEnd(int fd)
{
    std::string text;
    std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t got = read(fd, buffer.data(), buffer.size());
        if (got > 0)
            text.append(buffer.data(), static_cast<size_t>(got));
        else if (got == 0 || errno != EINTR)
            return text;
    }
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

} // namespace

std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments)
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
    Descriptor readEnd(ends[0]);
    Descriptor writeEnd(ends[1]);
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
        result.output = readToEnd(readEnd.get());
    } catch (const std::bad_alloc &) {
        readEnd.reset(); // the child meets a closed pipe and ends
        waitFor(child);
        return std::nullopt;
    }
    result.exitCode = waitFor(child);
    return result;
}

} // namespace bv
