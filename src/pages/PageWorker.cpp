// SPDX-License-Identifier: GPL-2.0-or-later
// Starting, asking and ending the process. No call here waits longer than a moment, but for waitForAnswer().
#include "pages/PageWorker.h"

#include "platform/ChildProcess.h"
#include "platform/Log.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <span>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr int kEndMilliseconds = 200;

void report(const std::string &what, const char *why)
{
    diagnosticLine(formatLog("preview: %@: %@", {what, why}));
}

// Without waiting for the other end of a FIFO. Nothing for what is no plain file.
FileDescriptor openDocument(const std::string &path)
{
    FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat state = {};
    if (!file || fstat(file.get(), &state) != 0) {
        report(path, std::strerror(errno));
        return {};
    }
    if (!S_ISREG(state.st_mode)) {
        report(path, "no plain file");
        return {};
    }
    return file;
}

struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

// Nothing on failure.
std::optional<Pipe> makePipe()
{
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    return Pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

void makeNonBlocking(const FileDescriptor &descriptor)
{
    fcntl(descriptor.get(), F_SETFL, fcntl(descriptor.get(), F_GETFL) | O_NONBLOCK);
}

int millisecondsUntil(std::chrono::steady_clock::time_point end)
{
    using namespace std::chrono;
    const auto left = duration_cast<milliseconds>(end - steady_clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

bool within(uint32_t value, uint32_t most)
{
    return value >= 1 && value <= most;
}

} // namespace

PageWorker &PageWorker::operator=(PageWorker &&other) noexcept
{
    if (this != &other) {
        end();
        m_process = std::exchange(other.m_process, -1);
        m_watch = std::move(other.m_watch);
        m_requests = std::move(other.m_requests);
        m_answers = std::move(other.m_answers);
    }
    return *this;
}

bool PageWorker::start(const std::string &program, const std::string &document)
{
    end();
    const FileDescriptor file = openDocument(document);
    std::optional<Pipe> requests = file ? makePipe() : std::nullopt;
    std::optional<Pipe> answers = requests ? makePipe() : std::nullopt;
    if (!answers)
        return false;
    const std::optional<pid_t> process =
        startWorker(program, {requests->readEnd.get(), answers->writeEnd.get(), file.get()});
    if (!process)
        return false;
    m_process = *process;
    // With O_NONBLOCK from the start (PIDFD_NONBLOCK is newer).
    m_watch = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, m_process, 0)));
    m_requests = std::move(requests->writeEnd);
    m_answers = std::move(answers->readEnd);
    makeNonBlocking(m_requests);
    makeNonBlocking(m_answers);
    return true;
}

void PageWorker::end()
{
    if (m_process < 0)
        return;
    kill(m_process, SIGKILL);
    if (m_watch) {
        pollfd watched = {m_watch.get(), POLLIN, 0};
        poll(&watched, 1, kEndMilliseconds);
    }
    // Without the descriptor (an old kernel) the wait has no limit.
    int result = 0;
    do
        result = waitpid(m_process, nullptr, m_watch ? WNOHANG : 0);
    while (result < 0 && errno == EINTR);
    m_process = -1;
    m_watch.reset();
    m_requests.reset();
    m_answers.reset();
}

bool PageWorker::send(const PageRequest &request)
{
    // A request is smaller than PIPE_BUF, so it is written whole or not at all. The caller's process may die of
    // SIGPIPE, so that signal is held back for the moment.
    sigset_t pipeSignal;
    sigset_t before;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipeSignal, &before);
    const ssize_t written = write(m_requests.get(), &request, sizeof request);
    if (written < 0 && errno == EPIPE) {
        const timespec now = {};
        sigtimedwait(&pipeSignal, nullptr, &now);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return written == sizeof request;
}

std::optional<PageAnswer> PageWorker::waitForAnswer(int milliseconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    std::array<char, sizeof(PageAnswer)> bytes = {};
    size_t filled = 0;
    while (filled < bytes.size()) {
        pollfd waited = {m_answers.get(), POLLIN, 0};
        const int ready = poll(&waited, 1, millisecondsUntil(end));
        if (ready < 0 && errno == EINTR)
            continue;
        const ssize_t got = ready > 0 ? readSome(m_answers.get(), std::span(bytes).subspan(filled)) : 0;
        if (got <= 0)
            return std::nullopt;
        filled += static_cast<size_t>(got);
    }
    PageAnswer answer;
    std::memcpy(&answer, bytes.data(), bytes.size());
    return answer;
}

std::string pagesProgram()
{
    std::error_code failed;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", failed);
    return (self.parent_path().parent_path() / "lib/bvco/bvpages").string();
}

bool plausible(const PageAnswer &answer, const PageRequest &request)
{
    if (answer.order != kPageOrder || answer.task != request.task || answer.page != request.page ||
        answer.verdict > PageVerdict::Locked || answer.content > PageContent::Text)
        return false;
    if (answer.verdict != PageVerdict::Done)
        return answer.bytes == 0;
    switch (answer.task) {
    case PageTask::Layout:
        return within(answer.pages, kMostPages) && answer.width <= kLongestSide && answer.height <= kLongestSide &&
               answer.bytes == 0;
    case PageTask::Measure:
        return within(answer.width, kLongestSide) && within(answer.height, kLongestSide) && answer.bytes == 0;
    case PageTask::Render:
        return answer.width == request.width && answer.height == request.height &&
               answer.bytes == pictureBytes(request.width, request.height, request.gray);
    }
    return false;
}

} // namespace bv
