// SPDX-License-Identifier: GPL-2.0-or-later
// The owner of a write sequence, and what happens to a sequence that was given up.
#include "helper/Caller.h"
#include "helper/HelperFixture.h"

#include <fcntl.h>
#include <future>
#include <sys/file.h>
#include <sys/prctl.h>
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
            return parent <= own && own < child && child - own < 100 * 3600;
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

TEST_F(Sequences, AWriterWaitsForAnotherOne)
{
    const int lock = open(folder().c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    auto waiting = std::async(std::launch::async, [&] { return writeList(listText("waiting")); });
    usleep(100000);
    EXPECT_EQ(names(), "");
    EXPECT_TRUE(answers(true, {kAdmin, current()}));
    close(lock);
    EXPECT_TRUE(waiting.get());
    EXPECT_EQ(contents(current()), listText("waiting"));
}

TEST_F(Sequences, AWriterGivesUpAfterTenSeconds)
{
    const int lock = open(folder().c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    RunOptions options = with("none:0:NONE");
    options.environment["FAULT_CLOCK"] = "1";
    options.environment["FAULT_LOG"] = real("/calls");
    EXPECT_TRUE(answers(false, {kPiece, url(), listText("late")}, options));
    close(lock);
    // Each attempt adds a line "flock" to the log and 5 ms to the waiting process's clock.
    const size_t tries = contents("/calls").value_or("").size() / 6;
    EXPECT_LE(tries, 2001U);
    EXPECT_GE(tries, 1500U);
}

} // namespace bvtest
