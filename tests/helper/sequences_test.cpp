// SPDX-License-Identifier: GPL-2.0-or-later
// The owner of a write sequence, and what happens to a sequence that was given up.
#include "helper/Caller.h"
#include "helper/HelperFixture.h"

#include <fcntl.h>
#include <future>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bvtest {

using Sequences = HelperTest;

TEST_F(Sequences, AnotherProcessCanOnlyStartItsOwnSequence)
{
    const std::string text = listText("ours");
    ASSERT_TRUE(answers(true, {kPiece, url(), text.substr(0, 500)}));
    EXPECT_TRUE(answersElsewhere(false, {kPiece, url(), text.substr(500)}));
    EXPECT_TRUE(answersElsewhere(false, {kCommit, url()}));
    ASSERT_TRUE(answers(true, {kPiece, url(), text.substr(500)}));
    EXPECT_TRUE(answersElsewhere(true, {kPiece, url(), listText("theirs")}));
    EXPECT_TRUE(answers(false, {kPiece, url(), "late"}));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_EQ(contents(current()), std::nullopt);
    EXPECT_TRUE(writeList(text));
    EXPECT_EQ(contents(current()), text);
}

TEST_F(Sequences, ALaterProcessWithTheSameIdIsNotTheOwner)
{
    ASSERT_TRUE(answers(true, {kPiece, url(), "<?xml"}));
    std::string staged = contents(staging()).value_or("");
    const size_t time = staged.find(' ' + std::to_string(bv::identifyProcess(getpid())->startTime) + ' ');
    ASSERT_NE(time, std::string::npos) << "the start time is part of the owner";
    staged[time + 1] = staged[time + 1] == '1' ? '2' : '1';
    put(staging(), staged);
    EXPECT_TRUE(answers(false, {kPiece, url(), " "}));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
}

TEST_F(Sequences, AProcessIsIdentifiedByStartTimeWhateverItsName)
{
    usleep(20000); // two clock ticks, the unit of start times
    EXPECT_TRUE(inAnotherProcess(
        [parent = bv::identifyProcess(getppid())->startTime, own = bv::identifyProcess(getpid())->startTime] {
            prctl(PR_SET_NAME, "a) b (c 1 2 3");
            const uint64_t child = bv::identifyProcess(getpid())->startTime;
            return parent <= own && own < child && child - own < uint64_t{100} * 3600;
        }));
    EXPECT_FALSE(bv::identifyProcess(0));
}

TEST_F(Sequences, DiagnosticsNeverEndUpInTheList)
{
    const std::string text = listText("ours");
    ASSERT_TRUE(answers(true, {kPiece, url(), text}));
    EXPECT_TRUE(inAnotherProcess([&] {
        RunOptions options;
        options.withoutStandardStreams = true;
        return run({kCommit, url()}, options).exitCode == 1; // writes the reason to descriptor 2
    }));
    EXPECT_TRUE(answers(true, {kCommit, url()}));
    EXPECT_EQ(contents(current()), text);
}

TEST_F(Sequences, AForeignStagingFileBelongsToNoSequence)
{
    put(staging(), listText("planted"));
    EXPECT_TRUE(answers(false, {kPiece, url(), " "}));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_EQ(names(), "");
    put(staging(), listText("planted"));
    EXPECT_TRUE(writeList(listText("new")));
    EXPECT_EQ(contents(current()), listText("new"));
}

TEST_F(Sequences, RequestsOfOneUserWaitForEachOtherTenSecondsAtMost)
{
    struct Row
    {
        std::vector<std::string> first, second;
        const char *before; // the call where the first one stops
    };
    const std::string text = listText("first");
    put(previous(), text);
    const Row rows[] = {
        {{kCommit, url()}, {kPiece, url(), text}, "ftruncate"},
        {{kSwap, "2", current(), previous()}, {kSwap, "3", current(), previous()}, "fsync"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.first[0]);
        ASSERT_TRUE(answers(true, {kPiece, url(), text}));
        auto holder = std::async(
            std::launch::async, [&] { return static_cast<bool>(answers(true, row.first, waitingBefore(row.before))); });
        waitingBefore(row.before); // makes the gate
        const int gate = open(real("/gate").c_str(), O_WRONLY | O_CLOEXEC);
        const std::string before = names();

        RunOptions impatient = with("none:0:NONE");
        impatient.environment["FAULT_CLOCK"] = "1";
        impatient.environment["FAULT_LOG"] = real("/calls");
        const RunResult late = run(row.second, impatient);
        EXPECT_EQ(late.exitCode, 1);
        EXPECT_NE(late.errors.find("another process of this user"), std::string::npos) << late.errors;
        EXPECT_EQ(names(), before);
        // Each attempt adds a line "lock" to the log and 5 ms to the waiting process's clock.
        const size_t tries = contents("/calls").value_or("").size() / 5;
        EXPECT_LE(tries, 2001U);
        EXPECT_GE(tries, 1500U);
        unlink(real("/calls").c_str());

        EXPECT_TRUE(answers(true, {kAdmin, current()}));
        auto waiting = std::async(std::launch::async, [&] { return static_cast<bool>(answers(true, row.second)); });
        EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
        close(gate);
        EXPECT_TRUE(holder.get());
        EXPECT_TRUE(waiting.get());
        EXPECT_EQ(contents(current()), text);
    }
}

TEST_F(Sequences, ManyProcessesOfOneUserNeverTearTheList)
{
    ASSERT_TRUE(writeList(listText("x", 20)));
    // Made before any thread: the copy of a process with threads may wait for a lock of the allocator for ever.
    std::vector<pid_t> writers;
    for (int writer = 0; writer < 6; ++writer) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const std::string text = listText(std::string(1, static_cast<char>('a' + writer)), 20);
            for (int round = 0; round < 5; ++round) {
                run({kPiece, url(), text.substr(0, 9000)});
                run({kPiece, url(), text.substr(9000)});
                run({kCommit, url()});
                run({kSwap, "2", current(), previous()});
            }
            _exit(0);
        }
        writers.push_back(child);
    }
    const auto whole = [](const std::optional<std::string> &text) {
        return text && *text == listText(text->substr(text->find("<string>") + 8, 1), 20);
    };
    bool torn = false;
    for (const pid_t writer : writers) {
        int status = 0;
        for (pid_t ended = 0; ended == 0; usleep(1000)) {
            torn = torn || !whole(contents(current()));
            ended = waitpid(writer, &status, WNOHANG);
        }
        EXPECT_EQ(status, 0);
    }
    EXPECT_FALSE(torn);
    EXPECT_TRUE(whole(contents(previous())));
}

} // namespace bvtest
