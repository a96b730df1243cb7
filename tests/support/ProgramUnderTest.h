// SPDX-License-Identifier: GPL-2.0-or-later
// A program that runs during a test, such as an agent or a daemon. The destructor stops it.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace bvtest {

class ProgramUnderTest
{
public:
    // Starts the program and captures its standard output and error.
    explicit ProgramUnderTest(const std::vector<std::string> &command);
    ~ProgramUnderTest();
    ProgramUnderTest(const ProgramUnderTest &) = delete;
    ProgramUnderTest &operator=(const ProgramUnderTest &) = delete;

    // Reads until the output contains the text. False when the program ends or 20 s pass before.
    bool waitFor(std::string_view text);
    // Reads what the program has written until now. Does not wait.
    void readWhatIsThere();
    // The output so far.
    const std::string &output() const { return m_output; }
    // The number after the last occurrence of `mark` in the output. 0 when there is none.
    long numberBehind(std::string_view mark) const;

    // Number of occurrences of the text in the output.
    int occurrences(std::string_view text) const;

    void signal(int number) const;
    // True if the program still runs. Does not wait.
    bool running();
    // Reads the rest of the output and waits for the end, at most 60 s; then the program is killed. Returns the exit
    // status, or -1 when a signal ended the program.
    int wait();
    // Sends SIGTERM and waits like wait().
    int stop();

private:
    bool readSome(std::chrono::milliseconds limit);

    pid_t m_pid = -1;
    int m_descriptor = -1;
    int m_exitCode = -1;
    std::string m_output;
};

// A scratch folder, readable by all and removed by the destructor.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    const std::string &path() const { return m_path; }
    std::string file(std::string_view name) const { return m_path + '/' + std::string(name); }
    // Writes a file in the folder and returns its path.
    std::string write(std::string_view name, std::string_view text) const;

private:
    std::string m_path;
};

} // namespace bvtest
