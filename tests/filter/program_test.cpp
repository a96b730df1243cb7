// SPDX-License-Identifier: GPL-2.0-or-later
// The built filter, called as the print server calls it.
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The running filter. Its output and messages go to /dev/null.
struct Filter
{
    Filter()
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        m_pid = fork();
        if (m_pid == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(ends[0], STDIN_FILENO);
            dup2(nowhere, STDOUT_FILENO);
            dup2(nowhere, STDERR_FILENO);
            setenv("PPD", BV_SOURCE_DIR "/resources/QL70.ppd", 1);
            execl(BV_BUILD_DIR "/bin/bvql70", "bvql70", "1", "user", "title", "1", "BVQuickColor=Photo", nullptr);
            _exit(127);
        }
        close(ends[0]);
        m_input = ends[1];
    }
    void give(std::string_view text) const
    {
        EXPECT_EQ(write(m_input, text.data(), text.size()), ssize_t(text.size()));
    }
    void end()
    {
        close(m_input);
        EXPECT_EQ(wait4(m_pid, &m_status, 0, &m_usage), m_pid);
    }

    pid_t m_pid = -1;
    int m_input = -1;
    int m_status = 0;
    rusage m_usage{};
};

constexpr char kHead[] = "%!PS-Adobe-3.0\n%%EndComments\n%%BeginSetup\n";

TEST(Filter, TakesNoMoreMemoryForALargeDocument)
{
    // A setup section without an end, a page of one line, and one of many.
    const std::string line(1 << 20, 'x');
    const std::string lines = line.substr(0, 70) + "\n%";
    std::array<long, 2> kilobytes{};
    for (int large = 0; large < 2; ++large) {
        Filter filter;
        filter.give(kHead);
        for (int i = 0; large && i < 48; ++i)
            filter.give(i < 24 ? line : [&lines] {
                std::string many;
                while (many.size() < (1 << 20))
                    many += lines;
                return many;
            }());
        filter.end();
        EXPECT_EQ(filter.m_status, 0);
        kilobytes[size_t(large)] = filter.m_usage.ru_maxrss;
    }
    EXPECT_LT(kilobytes[1] - kilobytes[0], 4096);
}

TEST(Filter, EndsAtOnceWhenTheJobIsCanceled)
{
    Filter filter;
    filter.give(kHead); // it waits for the rest
    kill(filter.m_pid, SIGTERM);
    EXPECT_EQ(waitpid(filter.m_pid, &filter.m_status, 0), filter.m_pid);
    EXPECT_TRUE(WIFSIGNALED(filter.m_status) && WTERMSIG(filter.m_status) == SIGTERM);
    close(filter.m_input);
}

} // namespace
