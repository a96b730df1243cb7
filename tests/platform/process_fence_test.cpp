// SPDX-License-Identifier: GPL-2.0-or-later
// What a process can do behind the fence.
#include "platform/FileDescriptor.h"
#include "platform/ProcessFence.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <pthread.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// What waitpid(2) says of a child that raises the fence and then returns 1 from the action for "done", else 0. Nothing
// when the kernel has no such fence.
std::optional<int> behindFence(const bv::FenceRules &rules, const std::function<bool()> &action)
{
    const pid_t child = fork();
    if (child == 0) {
        const bv::Fence fence = bv::raiseFence(rules);
        _exit(fence.files && fence.calls ? static_cast<int>(action()) : 77);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return -1;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77)
        return std::nullopt;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

class ProcessFence : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(mkdtemp(m_folder.data()));
        m_file = m_folder + "/file";
        std::ofstream(m_file) << "text";
        if (!behindFence({}, [] { return true; }))
            GTEST_SKIP() << "this kernel or container has no Landlock or no seccomp";
    }
    void TearDown() override
    {
        std::remove(m_file.c_str());
        rmdir(m_folder.c_str());
    }

    std::string m_folder = testing::TempDir() + "bvfence.XXXXXX";
    std::string m_file;
};

bool reads(const std::string &path)
{
    return static_cast<bool>(bv::FileDescriptor(open(path.c_str(), O_RDONLY)));
}

bool startsThread()
{
    pthread_t thread = {};
    return pthread_create(
               &thread, nullptr, [](void *) -> void * { return nullptr; }, nullptr) == 0 &&
           pthread_join(thread, nullptr) == 0;
}

} // namespace

TEST_F(ProcessFence, ForbidsAllThatLeadsOutOfTheProcess)
{
    const std::pair<const char *, std::function<bool()>> actions[] = {
        {"reading a file", [this] { return reads(m_file); }},
        {"writing a file", [this] { return open(m_file.c_str(), O_WRONLY) >= 0; }},
        {"making a file", [this] { return open((m_folder + "/new").c_str(), O_WRONLY | O_CREAT, 0600) >= 0; }},
        {"removing a file", [this] { return unlink(m_file.c_str()) == 0; }},
        {"renaming a file", [this] { return rename(m_file.c_str(), (m_folder + "/new").c_str()) == 0; }},
        {"changing a mode", [this] { return chmod(m_file.c_str(), 0777) == 0; }},
        {"making a socket", [] { return socket(AF_INET, SOCK_DGRAM, 0) >= 0; }},
        {"starting a process", [] { return fork() >= 0; }},
        {"starting a thread", startsThread},
        {"starting a program", [] { return execl("/bin/true", "true", nullptr) == 0; }},
        {"ending another process", [] { return kill(getppid(), 0) == 0; }},
        {"raising a limit",
         [] {
             const rlimit more = {4096, 4096};
             return setrlimit(RLIMIT_CORE, &more) == 0;
         }},
    };
    for (const auto &[name, action] : actions)
        EXPECT_EQ(behindFence({}, action), 0) << name;
}

TEST_F(ProcessFence, LeavesComputingAndOpenDescriptors)
{
    const bv::FileDescriptor file(open(m_file.c_str(), O_RDONLY));
    EXPECT_EQ(behindFence({}, [&file] { return bv::readAt(file.get(), 0, 4) == "text"; }), 1);
    EXPECT_EQ(behindFence({}, [] { return std::vector<char>(100'000'000, 'x').back() == 'x'; }), 1);
    EXPECT_EQ(behindFence({},
                          []() -> bool {
                              signal(SIGABRT, SIG_DFL);
                              abort();
                          }),
              -SIGABRT);
}

TEST_F(ProcessFence, OpensWhatIsReadableAndNothingElse)
{
    const char *const folder[] = {m_folder.c_str(), "/does/not/exist"};
    const char *const file[] = {m_file.c_str()};
    EXPECT_EQ(behindFence({.readable = folder}, [this] { return reads(m_file); }), 1);
    EXPECT_EQ(behindFence({.readable = file}, [this] { return reads(m_file); }), 1);
    EXPECT_EQ(behindFence({.readable = folder}, [] { return reads("/etc/passwd"); }), 0);
    EXPECT_EQ(behindFence({.readable = folder}, [this] { return open(m_file.c_str(), O_RDWR) >= 0; }), 0);
    EXPECT_EQ(
        behindFence({.readable = folder}, [this] { return open(m_folder.c_str(), O_TMPFILE | O_RDWR, 0600) >= 0; }), 0);
}

TEST_F(ProcessFence, GivesThreadsSocketsAndLimitsOnRequest)
{
    EXPECT_EQ(behindFence({.threads = true}, startsThread), 1);
    EXPECT_EQ(behindFence({.threads = true}, [] { return fork() >= 0; }), 0);

    int ends[2] = {};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM, 0, ends), 0);
    const bv::FileDescriptor one(ends[0]), other(ends[1]);
    const auto send = [&one] { return ::send(one.get(), "x", 1, 0) == 1; };
    EXPECT_EQ(behindFence({.sockets = true}, send), 1);
    EXPECT_EQ(behindFence({}, send), 0);

    EXPECT_EQ(behindFence({.cpuSeconds = 1},
                          [] {
                              std::atomic<bool> forever = true;
                              while (forever.load()) {
                              }
                              return false;
                          }),
              -SIGKILL);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_EQ(behindFence({.memoryBytes = size_t{256} << 20},
                          [] {
                              return mmap(nullptr, size_t{512} << 20, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) !=
                                     MAP_FAILED;
                          }),
              0);
#endif
}
