// SPDX-License-Identifier: GPL-2.0-or-later
// Root mapping, file URLs, child processes, the guard in front of property lists.
#include "platform/ChildProcess.h"
#include "platform/FileContents.h"
#include "platform/FileUrl.h"
#include "platform/PropertyList.h"
#include "platform/RootPath.h"
#include "platform/Utf8.h"
#include "support/TestRoot.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

TEST(RootPath, PutsAnAbsoluteRootInFront)
{
    struct Row
    {
        const char *root;
        const char *mapped;
    };
    const Row rows[] = {
        {nullptr, "/Library/x"},         {"/", "/Library/x"},   {"/tmp/a b", "/tmp/a b/Library/x"},
        {"/tmp/a/", "/tmp/a/Library/x"}, {"tmp", "/Library/x"},
    };
    for (const Row &row : rows) {
        row.root ? setenv("BVCO_ROOT", row.root, 1) : unsetenv("BVCO_ROOT");
        EXPECT_EQ(bv::mapRootPath("/Library/x"), row.mapped) << (row.root ? row.root : "(unset)");
    }
    unsetenv("BVCO_ROOT");
}

TEST(FileUrl, EncodesAllButUnreservedCharactersAndSlashes)
{
    EXPECT_EQ(bv::fileUrl("/Library/Printers/a-Z_0.9~"), "file:///Library/Printers/a-Z_0.9~");
    EXPECT_EQ(bv::fileUrl("/a b/ü%20@+$&:;?#[]!'()*,=\\\n\xFF"),
              "file:///a%20b/%C3%BC%2520%40%2B%24%26%3A%3B%3F%23%5B%5D%21%27%28%29%2A%2C%3D%5C%0A%FF");
}

TEST(Utf8, KnowsTheLimitsOfEachLength)
{
    for (const char *good : {"", "a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                             "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "eight by"})
        EXPECT_TRUE(bv::isUtf8(good)) << good;
    for (const char *bad : {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC2\xC0", "\xE0\x9F\xBF", "\xED\xA0\x80",
                            "\xEF\xBF", "\xEF\xBF\xC0", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                            "\xFF", "eight by\xE5", "1234567\xC3"})
        EXPECT_FALSE(bv::isUtf8(bad)) << bad;
}

std::optional<bv::ChildResult> shell(const std::string &script)
{
    const std::string words[] = {"-c", script};
    return bv::runChild("/bin/sh", words);
}

TEST(Child, LeavesNoDescriptorOpen)
{
    const int before = dup(STDIN_FILENO);
    close(before);
    EXPECT_TRUE(shell("true"));
    EXPECT_FALSE(bv::runChild("/nonexistent/program", {}));
    const int after = dup(STDIN_FILENO);
    close(after);
    EXPECT_EQ(before, after);
    // The child's standard output is its only descriptor of the pipe.
    const auto listed =
        shell("for fd in /proc/$$/fd/*; do readlink $fd; done | grep -cxF \"$(readlink /proc/$$/fd/1)\"");
    EXPECT_TRUE(listed && listed->output == "1\n") << (listed ? listed->output : "");
}

TEST(Child, InheritsOnlyTheEnvironment)
{
    int forgotten[2];
    ASSERT_EQ(pipe(forgotten), 0);
    ASSERT_EQ(dup2(forgotten[0], STDIN_FILENO), STDIN_FILENO);
    signal(SIGPIPE, SIG_IGN);
    const auto result = shell("cat; set -- /proc/$$/fd/*; echo $#; kill -PIPE $$");
    ASSERT_TRUE(result) << "it waits for our input";
    EXPECT_EQ(result->output, "4\n") << "its streams, and the folder that it lists";
    EXPECT_EQ(result->exitCode, -1) << "the signal was ignored";
}

TEST(Child, RunsInAHostWithoutStandardStreamsOrChildSignals)
{
    // Runs in a process of its own, so that standard streams can be closed. The exit status carries the result.
    const pid_t host = fork();
    ASSERT_GE(host, 0);
    if (host == 0) {
        for (int fd = 0; fd <= 2; ++fd)
            close(fd);
        signal(SIGCHLD, SIG_IGN); // the kernel discards exit statuses
        const auto result = shell("echo yes");
        _exit(result && result->output == "yes\n" && result->exitCode == -1 ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(host, &status, 0), host);
    EXPECT_EQ(status, 0);
}

TEST(Child, IsReadToTheEndDespiteSignals)
{
    // A signal every 2 ms interrupts the host's system calls.
    struct sigaction action = {};
    struct sigaction before = {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, &before);
    const itimerval often = {{0, 2000}, {0, 2000}};
    setitimer(ITIMER_REAL, &often, nullptr);
    const auto result = shell("printf a; sleep .03; printf b; exec >&-; sleep .03; exit 3");
    const itimerval never = {};
    setitimer(ITIMER_REAL, &never, nullptr);
    sigaction(SIGALRM, &before, nullptr);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->output, "ab");
    EXPECT_EQ(result->exitCode, 3);
}

TEST(PropertyList, IsBoundedInDepthAndSize)
{
    const auto readable = [](int depth, const std::string &open, const std::string &close, size_t blanks = 0) {
        std::string text = "<plist>" + std::string(blanks, ' ');
        for (int level = 0; level < depth; ++level)
            text += open;
        for (int level = 0; level < depth; ++level)
            text += close;
        return static_cast<bool>(bv::PropertyList::fromXml(text + "</plist>"));
    };
    EXPECT_TRUE(readable(32, "<array>", "</array>"));
    EXPECT_FALSE(readable(33, "<array>", "</array>"));
    EXPECT_FALSE(readable(33, "<dict><key>k</key>", "</dict>"));
    EXPECT_FALSE(readable(100'000, "<array>", ""));
    EXPECT_FALSE(readable(1, "<array>", "</array>", bv::kPlistMaximumBytes));
}

TEST(PropertyList, TakesTheLastOfEqualKeysAndWritesWhatItReads)
{
    bv::PropertyList list = bv::PropertyList::fromXml(
        "<plist><dict><key>b</key><integer>1</integer><key>a</key><string>x</string><key>b</key><real>2.9</real>"
        "<key>c</key><array/></dict></plist>");
    EXPECT_EQ(list.root().item("b").number(), 2);
    EXPECT_TRUE(list.root().repeats("b"));
    EXPECT_FALSE(list.root().repeats("a"));
    list.setText("a", "<&>\r\n\t\"'");
    list.setNumber("b", -5);
    const bv::PropertyList again = bv::PropertyList::fromXml(list.toXml());
    EXPECT_EQ(again.root().item("a").text(), "<&>\r\n\t\"'");
    EXPECT_EQ(again.root().item("b").number(), -5);
    EXPECT_FALSE(again.root().repeats("b"));
    EXPECT_FALSE(again.root().item("c"));
}

TEST(FileContents, AreBoundedByTheMaximum)
{
    const bvtest::TestRoot root;
    const std::string path = root.folder() / "file";
    std::ofstream(path) << "12345";
    EXPECT_EQ(bv::fileContents(path, 5), "12345");
    EXPECT_FALSE(bv::fileContents(path, 4));
    EXPECT_FALSE(bv::fileContents(path + "x", 5));
    EXPECT_FALSE(bv::fileContents("/proc/self/maps", 1)); // reports size 0 but has contents
    EXPECT_TRUE(bv::fileContents("/proc/self/status", 100'000));
}

} // namespace
