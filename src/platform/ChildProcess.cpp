// Child processes by posix_spawn(3).
#include "platform/ChildProcess.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <spawn.h>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace bv {

namespace {

// What a child gets of this process: the environment and the streams that it is given, and nothing else. No descriptor
// that somebody forgot to close, and no signal that a library of ours ignores.
class Spawn
{
public:
    explicit Spawn(short flags)
    {
        m_actionsMade = posix_spawn_file_actions_init(&m_actions) == 0;
        m_attributesMade = posix_spawnattr_init(&m_attributes) == 0;
        sigset_t normal;
        sigemptyset(&normal);
        sigaddset(&normal, SIGPIPE);
        sigaddset(&normal, SIGXFSZ);
        m_ready = m_actionsMade && m_attributesMade && posix_spawnattr_setsigdefault(&m_attributes, &normal) == 0 &&
                  posix_spawnattr_setflags(&m_attributes, static_cast<short>(flags | POSIX_SPAWN_SETSIGDEF)) == 0;
    }
    Spawn(const Spawn &) = delete;
    Spawn &operator=(const Spawn &) = delete;
    ~Spawn()
    {
        if (m_actionsMade)
            posix_spawn_file_actions_destroy(&m_actions);
        if (m_attributesMade)
            posix_spawnattr_destroy(&m_attributes);
    }
    void streamTo(int stream, int descriptor)
    {
        m_ready = m_ready && posix_spawn_file_actions_adddup2(&m_actions, descriptor, stream) == 0;
    }
    void streamToNothing(int stream, int mode)
    {
        m_ready = m_ready && posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", mode, 0) == 0;
    }
    // To be called last. 0, or the number of the error.
    int start(pid_t *child, const std::string &program, char *const *words)
    {
        if (!m_ready || posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1) != 0)
            return ENOMEM;
        return posix_spawn(child, program.c_str(), &m_actions, &m_attributes, words, environ);
    }

private:
    posix_spawn_file_actions_t m_actions;
    posix_spawnattr_t m_attributes;
    bool m_actionsMade = false;
    bool m_attributesMade = false;
    bool m_ready = false;
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

// What a child complained about stands in our log, each line under the child's name. A flood of it is cut.
void reportComplaints(const std::string &program, int fd)
{
    constexpr off_t kMost = 16384;
    if (lseek(fd, 0, SEEK_END) > kMost && ftruncate(fd, kMost) != 0)
        return;
    lseek(fd, 0, SEEK_SET);
    std::string text;
    readToEnd(fd, &text);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        diagnosticLine(formatLog("%@: %@", {program, line}));
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
    // A file without a name: it takes what the child complains about, however much that is, while the pipe is read.
    const FileDescriptor complaints(memfd_create("complaints", MFD_CLOEXEC));
    Spawn spawn(0);
    spawn.streamToNothing(STDIN_FILENO, O_RDONLY);
    spawn.streamTo(STDOUT_FILENO, writeEnd.get());
    if (complaints)
        spawn.streamTo(STDERR_FILENO, complaints.get());
    else
        spawn.streamToNothing(STDERR_FILENO, O_WRONLY);
    pid_t child = -1;
    if (const int error = spawn.start(&child, program, words.data())) {
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
    if (complaints)
        reportComplaints(program, complaints.get());
    return result;
}

} // namespace

std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments)
{
    return withoutThrowing(std::nullopt, [&] { return run(program, arguments); });
}

bool startProgram(const std::string &program)
{
    Spawn spawn(POSIX_SPAWN_SETSID);
    spawn.streamToNothing(STDIN_FILENO, O_RDONLY);
    spawn.streamToNothing(STDOUT_FILENO, O_WRONLY);
    spawn.streamToNothing(STDERR_FILENO, O_WRONLY);
    char *words[] = {const_cast<char *>(program.c_str()), nullptr};
    pid_t child = -1;
    if (const int error = spawn.start(&child, program, words)) {
        report(program, "not started", error);
        return false;
    }
    try {
        // Somebody has to take its exit status, or it stays in the list of processes as long as this one does.
        std::thread([child] { waitFor(child); }).detach();
    } catch (const std::system_error &) {
        report(program, "nobody waits for it", EAGAIN);
    }
    return true;
}

} // namespace bv
