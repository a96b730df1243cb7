// SPDX-License-Identifier: GPL-2.0-or-later
// The walk request: its words, its login name, and the list it writes when no printer answers.
#include "helper/HelperFixture.h"

#include <filesystem>
#include <fstream>

namespace bvtest {

namespace {

using Arguments = std::vector<std::string>;

constexpr size_t kLogin = 2;
constexpr size_t kHost = 9;

} // namespace

using WalkRequest = HelperTest;

TEST_F(WalkRequest, OtherWordsAreAnUnknownRequest)
{
    const Arguments right = walkRequest("127.0.0.1");
    std::vector<Arguments> wrong;
    for (size_t word = 1; word < right.size(); ++word) {
        if (word == kLogin)
            continue;
        for (const char *text : {"", "-h", "-CiLo"}) {
            wrong.push_back(right);
            wrong.back()[word] = text;
        }
    }
    wrong.push_back(right);
    wrong.back()[kHost] = "-Lf" + real("/written");
    wrong.push_back(right);
    std::swap(wrong.back()[4], wrong.back()[5]);
    for (const Arguments &arguments : wrong) {
        const RunResult result = run(arguments, walkSettings());
        EXPECT_EQ(result.output, "mibwalk_XPC=FALSE\n");
        EXPECT_EQ(result.exitCode, 2);
    }
    EXPECT_EQ(names(), "");
    EXPECT_FALSE(std::filesystem::exists(real("/written")));
}

TEST_F(WalkRequest, AnotherLoginNameIsRefused)
{
    for (const char *login : {"", "no-such-user", "../root", "root\n"}) {
        Arguments arguments = walkRequest("127.0.0.1");
        arguments[kLogin] = login;
        EXPECT_TRUE(answers(false, arguments, walkSettings())) << login;
    }
    EXPECT_EQ(names(), "");
}

TEST_F(WalkRequest, AnUnknownHostCountsAsAWalkThatRan)
{
    const RunResult result = run(walkRequest(), walkSettings());
    EXPECT_EQ(result.output, "mibwalk_XPC=iRet=1\n");
    EXPECT_EQ(result.exitCode, 0);
    // The reconciliation wrote an empty list through the usual commit.
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    EXPECT_TRUE(contents(current()).value_or("").starts_with("<?xml"));
}

TEST_F(WalkRequest, TheParentDoesNotOwnTheSequenceOfAWalk)
{
    RunOptions options = walkSettings();
    options.environment.merge(with("ftruncate:1:KILL").environment); // between the last piece and the commit
    EXPECT_EQ(run(walkRequest(), options).exitCode, -1);
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist.part");
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_EQ(contents(current()), std::nullopt);
}

TEST_F(WalkRequest, RootWalksForAnotherUser)
{
    if (!m_isRoot)
        GTEST_SKIP() << "needs root, who alone may name another user";
    Arguments arguments = walkRequest();
    arguments[kLogin] = "daemon";
    EXPECT_EQ(run(arguments, walkSettings()).output, "mibwalk_XPC=iRet=1\n");
    EXPECT_EQ(names(), "daemon-QL70-profile.plist");
}

TEST_F(WalkRequest, RunsOnlyTheProgramBesideTheHelper)
{
    const std::filesystem::path folder = real("/helpers");
    const std::filesystem::path elsewhere = real("/elsewhere");
    for (const auto &made : {folder, elsewhere})
        std::filesystem::create_directories(made);
    std::filesystem::copy_file(BV_BUILD_DIR "/bin/QL70Helper", folder / "QL70Helper");
    std::ofstream(elsewhere / "QL70Walk") << "#!/bin/sh\necho another\n";
    std::filesystem::permissions(elsewhere / "QL70Walk", std::filesystem::perms::all);
    RunOptions options = walkSettings();
    options.program = folder / "QL70Helper";
    options.environment["PATH"] = elsewhere;
    EXPECT_TRUE(answers(false, walkRequest("127.0.0.1"), options));
    EXPECT_EQ(names(), "");

    std::filesystem::copy_file(BV_BUILD_DIR "/bin/QL70Walk", folder / "QL70Walk");
    EXPECT_EQ(run(walkRequest(), options).output, "mibwalk_XPC=iRet=1\n");
}

TEST_F(WalkRequest, TheWalkProgramRefusesOtherRequestsAndWords)
{
    RunOptions options = walkSettings();
    options.program = BV_BUILD_DIR "/bin/QL70Walk";
    Arguments wrong = walkRequest("-h");
    EXPECT_EQ(run(wrong, options).output, "mibwalk_XPC=FALSE\n");
    EXPECT_EQ(run({kAdmin, current()}, options).output, std::string(kAdmin) + "=FALSE\n");
    EXPECT_EQ(names(), "");
}

} // namespace bvtest
