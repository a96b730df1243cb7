// SPDX-License-Identifier: GPL-2.0-or-later
// Starts programs with posix_spawn(3) and reads their output from a pipe.
#include "support/ProgramUnderTest.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace bvtest {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

ProgramUnderTest::ProgramUnderTest(const std::vector<std::string> &command)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    std::vector<char *> words;
    for (const std::string &word : command)
        words.push_back(const_cast<char *>(word.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    const int error = posix_spawnp(&m_pid, words[0], &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    m_descriptor = ends[0];
    if (error != 0)
        throw std::runtime_error("cannot start " + command.front());
}

ProgramUnderTest::~ProgramUnderTest()
{
    if (m_pid > 0) {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    close(m_descriptor);
}

bool ProgramUnderTest::readSome(milliseconds limit)
{
    pollfd readable = {m_descriptor, POLLIN, 0};
    if (poll(&readable, 1, static_cast<int>(limit.count())) <= 0)
        return false;
    std::array<char, 4096> bytes;
    const ssize_t length = read(m_descriptor, bytes.data(), bytes.size());
    if (length <= 0)
        return false;
    m_output.append(bytes.data(), static_cast<size_t>(length));
    return true;
}

bool ProgramUnderTest::waitFor(std::string_view text)
{
    const Clock::time_point deadline = Clock::now() + milliseconds(20000);
    while (m_output.find(text) == std::string::npos) {
        const auto left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now());
        if (left.count() <= 0 || !readSome(left))
            return false;
    }
    return true;
}

void ProgramUnderTest::readWhatIsThere()
{
    while (readSome(milliseconds(0))) {
    }
}

long ProgramUnderTest::numberBehind(std::string_view mark) const
{
    const size_t at = m_output.rfind(mark);
    return at == std::string::npos ? 0 : std::strtol(m_output.c_str() + at + mark.size(), nullptr, 10);
}

int ProgramUnderTest::occurrences(std::string_view text) const
{
    int number = 0;
    for (size_t at = m_output.find(text); at != std::string::npos; at = m_output.find(text, at + 1))
        ++number;
    return number;
}

void ProgramUnderTest::signal(int number) const
{
    if (m_pid > 0)
        kill(m_pid, number);
}

bool ProgramUnderTest::running()
{
    siginfo_t info = {};
    return m_pid > 0 && waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           info.si_pid == 0;
}

int ProgramUnderTest::wait()
{
    const Clock::time_point deadline = Clock::now() + milliseconds(60000);
    const auto left = [&] { return std::chrono::duration_cast<milliseconds>(deadline - Clock::now()); };
    while (left().count() > 0 && readSome(left())) {
    }
    // The output may end before the program does.
    while (running() && left().count() > 0)
        std::this_thread::sleep_for(milliseconds(2));
    if (running()) {
        m_output += "\n(killed, because it did not end)\n";
        signal(SIGKILL);
    }
    int status = 0;
    if (m_pid > 0 && waitpid(m_pid, &status, 0) == m_pid) {
        m_pid = -1;
        m_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    return m_exitCode;
}

int ProgramUnderTest::stop()
{
    signal(SIGTERM);
    return wait();
}

ScratchFolder::ScratchFolder()
{
    std::string path = std::filesystem::temp_directory_path() / "bvtest-XXXXXX";
    if (!mkdtemp(path.data()))
        throw std::runtime_error("no scratch folder");
    chmod(path.c_str(), 0755);
    m_path = path;
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string ScratchFolder::write(std::string_view name, std::string_view text) const
{
    std::string path = file(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

} // namespace bvtest
