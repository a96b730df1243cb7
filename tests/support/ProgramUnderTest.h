// A program that runs beside a test: an agent, a daemon, a publisher. It goes with the object.
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
    // Starts the program; its standard output and error come to this object.
    explicit ProgramUnderTest(const std::vector<std::string> &command);
    ~ProgramUnderTest();
    ProgramUnderTest(const ProgramUnderTest &) = delete;
    ProgramUnderTest &operator=(const ProgramUnderTest &) = delete;

    // Reads on until the output holds the text; false when the program ends or 20 s pass before that.
    bool waitFor(std::string_view text);
    // The output so far.
    const std::string &output() const { return m_output; }
    // The number behind the last "mark" in the output; 0 when there is none.
    long numberBehind(std::string_view mark) const;

    // How often the text stands in the output.
    int occurrences(std::string_view text) const;

    void signal(int number) const;
    // Whether it still runs, asked without waiting.
    bool running();
    // Waits for the end, reading all that is left of the output; the exit status, or -1 when a signal ended it.
    int wait();
    // Asks it to end (SIGTERM) and waits.
    int stop();

private:
    bool readSome(std::chrono::milliseconds limit);

    pid_t m_pid = -1;
    int m_descriptor = -1;
    int m_exitCode = -1;
    std::string m_output;
};

// A folder of a test's own, readable by all and removed with the object.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    const std::string &path() const { return m_path; }
    std::string file(std::string_view name) const { return m_path + '/' + std::string(name); }
    // Writes a file in it and yields its path.
    std::string write(std::string_view name, std::string_view text) const;

private:
    std::string m_path;
};

} // namespace bvtest
