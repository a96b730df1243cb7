// Whatever stops the helper or the disk, the list is the whole old or the whole new one, and the next sequence works.
#include "helper/HelperFixture.h"

#include <algorithm>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bvtest {

namespace {

constexpr char kFaultLibrary[] = BV_BUILD_DIR "/tests/bvfault.so";
constexpr size_t kPieceBytes = 3000; // three pieces of the texts used here

using Arguments = std::vector<std::string>;

} // namespace

class Faults : public HelperTest
{
protected:
    RunOptions with(const std::string &fault) const
    {
        RunOptions options;
        options.environment = {{"LD_PRELOAD", kFaultLibrary},
                               {"FAULT", fault},
                               {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0"}};
        return options;
    }

    // The requests that write a text, in order.
    std::vector<Arguments> requestsFor(const std::string &text) const
    {
        std::vector<Arguments> requests;
        for (size_t begin = 0; begin < text.size(); begin += kPieceBytes)
            requests.push_back({kPiece, url(), text.substr(begin, kPieceBytes)});
        requests.push_back({kCommit, url()});
        return requests;
    }

    // How many calls that can be made to fail each request makes, in the same state.
    std::vector<int> callsOf(const std::vector<Arguments> &requests)
    {
        std::vector<int> calls;
        for (const Arguments &request : requests) {
            RunOptions options = with("none:0:NONE");
            options.environment["FAULT_LOG"] = real("/calls");
            EXPECT_TRUE(answers(true, request, options));
            const std::string log = contents("/calls").value_or("");
            unlink(real("/calls").c_str());
            calls.push_back(static_cast<int>(std::count(log.begin(), log.end(), '\n')));
        }
        return calls;
    }

    // Puts the old list there, sends the requests with a fault in one of them, and looks at what is left.
    void stopIn(const std::vector<Arguments> &requests, size_t faulty, const RunOptions &fault)
    {
        ASSERT_TRUE(writeList(m_old));
        for (size_t i = 0; i < requests.size(); ++i) {
            const RunResult result = run(requests[i], i == faulty ? fault : RunOptions());
            // A client that gets no TRUE for a piece sends nothing more; the sequence is then given up.
            if (result.output != requests[i][0] + "=TRUE\n")
                break;
        }
        const std::string now = contents(current()).value_or("");
        ASSERT_TRUE(now == m_old || now == m_new) << "torn: " << now.size() << " bytes";
        ASSERT_TRUE(writeList(m_next, {}, kPieceBytes));
        ASSERT_EQ(contents(current()), m_next);
        ASSERT_EQ(names(), m_login + "-QL70-profile.plist");
    }

    const std::string m_old = listText("old", 3);
    const std::string m_new = listText("new list", 3);
    const std::string m_next = listText("next", 4);
};

TEST_F(Faults, KilledBeforeAnyCallOfAWriteSequence)
{
    const auto requests = requestsFor(m_new);
    ASSERT_TRUE(writeList(m_old));
    const std::vector<int> calls = callsOf(requests);
    for (size_t request = 0; request < requests.size(); ++request) {
        ASSERT_GE(calls[request], 2) << "lock and write at the least";
        for (int call = 1; call <= calls[request]; ++call) {
            SCOPED_TRACE("request " + std::to_string(request) + ", call " + std::to_string(call));
            for (const char *action : {"KILL", "EIO"})
                stopIn(requests, request, with("any:" + std::to_string(call) + ":" + action));
            if (HasFatalFailure())
                return;
        }
        for (const char *fault : {"write:1:TORN", "write:1:SHORT"})
            stopIn(requests, request, with(fault));
    }
}

TEST_F(Faults, KilledAtRandomMomentsOfAWriteSequence)
{
    const auto requests = requestsFor(m_new);
    std::mt19937 random(20);
    for (int i = 0; i < 100 && !HasFatalFailure(); ++i) {
        RunOptions killed;
        killed.killAfterMicroseconds = static_cast<int>(random() % 8000);
        stopIn(requests, random() % requests.size(), killed);
    }
}

TEST_F(Faults, ATornPieceIsNeverCommitted)
{
    const auto requests = requestsFor(m_new);
    ASSERT_TRUE(writeList(m_old));
    ASSERT_TRUE(answers(true, requests[0]));
    EXPECT_EQ(run(requests[1], with("write:1:TORN")).exitCode, -1);
    EXPECT_TRUE(answers(false, requests[2]));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_EQ(contents(current()), m_old);
}

TEST_F(Faults, AFullDiskEndsTheSequenceAndIsFreed)
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

TEST_F(Faults, KilledSwapsLeaveWholeFiles)
{
    put(current(), m_new);
    put(previous(), m_old);
    const Arguments swap = {kSwap, "2", current(), previous()};
    const int calls = callsOf({swap})[0];
    ASSERT_GE(calls, 4) << "write, flush, rename, flush";
    for (int call = 1; call <= calls; ++call) {
        put(previous(), m_old);
        run(swap, with("any:" + std::to_string(call) + ":TORN"));
        EXPECT_EQ(contents(current()), m_new);
        const std::string now = contents(previous()).value_or("");
        EXPECT_TRUE(now == m_old || now == m_new) << call;
        EXPECT_TRUE(answers(true, swap));
        EXPECT_EQ(names(), m_login + "-QL70-profile.plist " + m_login + "-QL70-profile.prev.plist");
    }
}

TEST_F(Faults, ANameSwappedBeforeTheRenameLeadsNowhere)
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
}

TEST_F(Faults, AFolderThatCannotBeWrittenMakesNoAdministrator)
{
    ASSERT_TRUE(writeList(m_old));
    ASSERT_EQ(chmod(folder().c_str(), 0555), 0);
    const bool asExpected = underPermissions([&] {
        return answers(false, {"bvPListIsAdminProfile_XPC", current()}) &&
               answers(true, {"bvPListExistProfile_XPC", current()}) && answers(false, {kPiece, url(), m_new}) &&
               answers(false, {kCommit, url()}) && answers(false, {kSwap, "2", current(), previous()}) &&
               answers(false, {"bvPListRemove_XPC", current()});
    });
    EXPECT_TRUE(asExpected);
    EXPECT_EQ(contents(current()), m_old);
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
}

TEST_F(Faults, AReadOnlyOrFullFileSystemKeepsTheOldList)
{
    // A file system of the test's own, which nobody else sees and which goes with the child process.
    const bool asExpected = inAnotherProcess([&] {
        if (unshare(m_isRoot ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0)
            return !m_isRoot; // a kernel that grants users no namespaces
        if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("none", folder().c_str(), "tmpfs", 0, "size=32k") != 0)
            return !m_isRoot;
        if (!m_isRoot)
            return true; // without a user map the helper's caller has no name there
        const bool filled = writeList(m_old) && answers(true, {kPiece, url(), m_new.substr(0, 5000)}) &&
                            answers(false, {kPiece, url(), std::string(30000, 'x')}) &&
                            names() == m_login + "-QL70-profile.plist";
        if (mount("none", folder().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
            return false;
        return filled && answers(false, {"bvPListIsAdminProfile_XPC", current()}) &&
               answers(false, {kPiece, url(), m_new}) && answers(false, {"bvPListRemove_XPC", current()}) &&
               contents(current()) == m_old;
    });
    EXPECT_TRUE(asExpected);
}

} // namespace bvtest
