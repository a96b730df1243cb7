// SPDX-License-Identifier: GPL-2.0-or-later
// Single faults and races of the helper, and what is left in the folder. tests/faults tries every call.
#include "helper/HelperFixture.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace bvtest {

namespace {

constexpr size_t kPieceBytes = 3000; // three pieces of the texts used here

using Arguments = std::vector<std::string>;

} // namespace

class Faults : public HelperTest
{
protected:
    // The requests that write a text, in order.
    std::vector<Arguments> requestsFor(const std::string &text) const
    {
        std::vector<Arguments> requests;
        for (size_t begin = 0; begin < text.size(); begin += kPieceBytes)
            requests.push_back({kPiece, url(), text.substr(begin, kPieceBytes)});
        requests.push_back({kCommit, url()});
        return requests;
    }

    // Names of the calls of a request that can be made to fail, each followed by a blank.
    std::string callsOf(const Arguments &request) const
    {
        RunOptions options = with("none:0:NONE");
        options.environment["FAULT_LOG"] = real("/calls");
        EXPECT_TRUE(answers(true, request, options));
        std::string calls = contents("/calls").value_or("");
        unlink(real("/calls").c_str());
        std::replace(calls.begin(), calls.end(), '\n', ' ');
        return calls.starts_with("fchown ") ? calls.substr(7) : calls; // only root gives a file away
    }

    const std::string m_old = listText("old", 3);
    const std::string m_new = listText("new list", 3);
};

TEST_F(Faults, EveryChangeIsFlushedBeforeItIsReported)
{
    ASSERT_TRUE(answers(true, {kPiece, url(), m_old}));
    EXPECT_EQ(callsOf({kCommit, url()}), "lock ftruncate fchmod fsync rename fsync-folder ");
    EXPECT_EQ(callsOf({kSwap, "2", current(), previous()}), "fchmod lock write fchmod fsync rename fsync-folder ");
    EXPECT_EQ(callsOf({kRemove, previous()}), "unlink fsync-folder ");
    ASSERT_TRUE(answers(true, {kPiece, url(), m_new}));
    EXPECT_TRUE(answers(false, {kCommit, url()}, with("fsync-folder:1:EIO"))) << "the new name may be lost yet";
    EXPECT_EQ(contents(current()), m_new);
}

TEST_F(Faults, AFileSizeLimitIsAnErrorAndDoesNotKill)
{
    RunOptions options;
    options.fileSizeLimit = 1000;
    EXPECT_TRUE(answers(false, {kPiece, url(), m_new}, options));
    EXPECT_EQ(names(), "");
}

TEST_F(Faults, ClosedOutputsDoNotStopARequestHalfway)
{
    ASSERT_TRUE(answers(true, {kPiece, url(), "<?xml"}));
    RunOptions options;
    options.withoutReaders = true;
    EXPECT_EQ(run({kCommit, url()}, options).exitCode, 1) << "its complaints and its answer go nowhere";
    EXPECT_EQ(names(), "");
}

TEST_F(Faults, AFullDiskEndsTheSequenceAndFreesItsSpace)
{
    const auto requests = requestsFor(m_new);
    ASSERT_TRUE(writeList(m_old));
    ASSERT_TRUE(answers(true, requests[0]));
    EXPECT_TRUE(answers(false, requests[1], with("write:1:ENOSPC")));
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    EXPECT_TRUE(answers(false, requests[2]));
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}, with("write:1:ENOSPC")));
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    EXPECT_EQ(contents(current()), m_old);
}

TEST_F(Faults, AFailedFlushOrRenameLeavesTheOldList)
{
    for (const char *fault : {"fsync:1:EIO", "rename:1:EIO", "rename:1:ENOSPC", "ftruncate:1:EIO"}) {
        ASSERT_TRUE(writeList(m_old));
        ASSERT_TRUE(answers(true, {kPiece, url(), m_new}));
        EXPECT_TRUE(answers(false, {kCommit, url()}, with(fault))) << fault;
        EXPECT_EQ(contents(current()), m_old);
        EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    }
}

TEST_F(Faults, AFileSwappedBeforeTheRenameIsNotFollowed)
{
    for (const std::string &swapped : {staging(), current()}) {
        ASSERT_TRUE(writeList(m_old));
        put("/victim", "untouched");
        ASSERT_TRUE(answers(true, {kPiece, url(), m_new}));
        RunOptions options = with("rename:1:SWAP");
        options.environment["FAULT_NAME"] = real(swapped);
        options.environment["FAULT_TARGET"] = real("/victim");
        EXPECT_TRUE(answers(swapped == current(), {kCommit, url()}, options)) << swapped;
        EXPECT_EQ(contents("/victim"), "untouched");
        unlink(real(current()).c_str());
    }
    // Also when the file is swapped before the check, the old list stays.
    ASSERT_TRUE(writeList(m_old));
    ASSERT_TRUE(answers(true, {kPiece, url(), m_new}));
    RunOptions options = with("fsync:1:SWAP");
    options.environment["FAULT_NAME"] = real(staging());
    options.environment["FAULT_TARGET"] = real("/victim");
    EXPECT_TRUE(answers(false, {kCommit, url()}, options));
    EXPECT_EQ(contents(current()), m_old);
}

TEST_F(Faults, AFileReplacedBetweenCheckAndOpenIsJudgedAnew)
{
    for (const char *action : {"SWAP", "MOVE"}) {
        put(current(), "judged");
        put("/other", "another file of the same owner");
        ASSERT_EQ(link(real("/other").c_str(), real("/second name").c_str()), 0);
        RunOptions options = with(std::string("open:4:") + action); // check, copy, check of the source, source
        options.environment["FAULT_NAME"] = real(current());
        options.environment["FAULT_TARGET"] = real("/other");
        EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}, options)) << action;
        EXPECT_EQ(contents(previous()), std::nullopt) << action;
        unlink(real(current()).c_str());
        unlink(real("/second name").c_str());
    }
}

TEST_F(Faults, WithoutWriteAccessToTheFolderNobodyIsAdministrator)
{
    ASSERT_TRUE(writeList(m_old));
    ASSERT_EQ(chmod(folder().c_str(), 0555), 0);
    const bool asExpected = underPermissions([&] {
        return answers(false, {kAdmin, current()}) && answers(true, {kExist, current()}) &&
               answers(false, {kPiece, url(), m_new}) && answers(false, {kCommit, url()}) &&
               answers(false, {kSwap, "2", current(), previous()}) && answers(false, {kRemove, current()});
    });
    EXPECT_TRUE(asExpected);
    EXPECT_EQ(contents(current()), m_old);
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
}

} // namespace bvtest
