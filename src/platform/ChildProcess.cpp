// SPDX-License-Identifier: GPL-2.0-or-later
// Child processes by posix_spawn(3).
#include "platform/ChildProcess.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"
#include "platform/PanelWait.h"

#include <array>
#include <cerrno>
#include <chrono>
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

// What a child inherits from this process: the environment and the given streams. It inherits no other descriptor, and
// signals that a library made this process ignore have their default action again.
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
    // Call it last. Returns 0 or an error number as in errno.
    int start(pid_t *child, const std::string &program, char *const *words, int lastDescriptor = STDERR_FILENO)
    {
        if (!m_ready || posix_spawn_file_actions_addclosefrom_np(&m_actions, lastDescriptor + 1) != 0)
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

// Waits for the child and returns its exit status. -1 when a signal ended it, or when the status is lost because the
// host process ignores SIGCHLD.
int waitFor(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Ends a child that nobody waits for any more, and waits for its end: it may still finish a file.
void end(pid_t child)
{
    constexpr int kTries = 100;
    constexpr std::chrono::milliseconds kPause{2};
    kill(child, SIGTERM);
    for (int i = 0; i < kTries; ++i) {
        if (const pid_t ended = waitpid(child, nullptr, WNOHANG); ended == child || (ended < 0 && errno != EINTR))
            return;
        std::this_thread::sleep_for(kPause);
    }
    kill(child, SIGKILL);
    waitFor(child);
}

using Deadline = std::optional<std::chrono::steady_clock::time_point>;

// Reads everything that the child prints, up to the deadline. What was read before a failure is kept.
PanelWait::End readWaiting(int output, std::string *text, const Deadline &deadline)
{
    using End = PanelWait::End;
    PanelWait *wait = panelWait();
    if (!wait && !deadline)
        readToEnd(output, text);
    if (!wait)
        return !deadline || readToEndBefore(output, text, std::string::npos, *deadline) ? End::Input : End::TimeOver;
    std::array<char, 4096> bytes;
    for (;;) {
        if (const End end = wait->waitForInput(output, deadline); end != End::Input)
            return end;
        const ssize_t count = readSome(output, bytes);
        if (count <= 0)
            return End::Input;
        text->append(bytes.data(), static_cast<size_t>(count));
    }
}

// Writes the child's standard error to the diagnostic log, each line with the child's name in front. Very long output
// is cut.
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

std::optional<ChildResult> run(const std::string &program, std::span<const std::string> arguments,
                               std::optional<std::chrono::milliseconds> limit)
{
    const auto begin = std::chrono::steady_clock::now();
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
    // Standard error goes to an unnamed file, so the child never blocks on it while the pipe is read.
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
    // Read before waiting: a child that prints more than the pipe holds would otherwise never end.
    ChildResult result;
    try {
        const Deadline deadline = limit ? Deadline(begin + *limit) : Deadline();
        switch (readWaiting(readEnd.get(), &result.output, deadline)) {
        case PanelWait::End::Input:
            break;
        case PanelWait::End::TimeOver:
            report(program, "ended at its time limit", ETIMEDOUT);
            kill(child, SIGKILL);
            break;
        case PanelWait::End::GaveUp:
            report(program, "ended for the user", ECANCELED);
            end(child);
            return std::nullopt;
        }
    } catch (const std::bad_alloc &) {
        readEnd.reset(); // a child that still writes gets a closed pipe and ends
        waitFor(child);
        throw;
    }
    result.exitCode = waitFor(child);
    if (complaints)
        reportComplaints(program, complaints.get());
    return result;
}

} // namespace

std::optional<ChildResult> runChild(const std::string &program, std::span<const std::string> arguments,
                                    std::optional<std::chrono::milliseconds> limit)
{
    return withoutThrowing(std::nullopt, [&] { return run(program, arguments, limit); });
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
        // Without a wait for its exit status, the child would stay a zombie as long as this process runs.
        std::thread([child] { waitFor(child); }).detach();
    } catch (const std::system_error &) {
        report(program, "nobody waits for it", EAGAIN);
    }
    return true;
}

std::optional<pid_t> startWorker(const std::string &program, const WorkerDescriptors &descriptors)
{
    constexpr int kThird = STDERR_FILENO + 1;
    Spawn spawn(0);
    spawn.streamTo(STDIN_FILENO, descriptors.input);
    spawn.streamTo(STDOUT_FILENO, descriptors.output);
    spawn.streamTo(kThird, descriptors.third);
    spawn.streamToNothing(STDERR_FILENO, O_WRONLY);
    char *words[] = {const_cast<char *>(program.c_str()), nullptr};
    pid_t child = -1;
    if (const int error = spawn.start(&child, program, words, kThird)) {
        report(program, "not started", error);
        return std::nullopt;
    }
    return child;
}

} // namespace bv
