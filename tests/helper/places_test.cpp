// SPDX-License-Identifier: GPL-2.0-or-later
// The helper uses an existing list, copy or staging file only if it is a plain file of the user.
#include "helper/HelperFixture.h"

#include <filesystem>
#include <sys/stat.h>

namespace bvtest {

namespace {

constexpr char kVictim[] = "/victim"; // logical path, outside the folder but in the same file system
constexpr char kVictimText[] = "must stay as it is";

using Path = const std::string &;

struct ThingRow
{
    const char *name;
    void (*make)(Path at, Path victim);
};

// clang-format off
constexpr ThingRow kThings[] = {
    {"symbolic_link", [](Path at, Path victim) { std::filesystem::create_symlink(victim, at); }},
    {"dangling_link", [](Path at, Path victim) { std::filesystem::create_symlink(victim + "x", at); }},
    {"hard_link",     [](Path at, Path victim) { std::filesystem::create_hard_link(victim, at); }},
    {"FIFO",          [](Path at, Path) { mkfifo(at.c_str(), 0644); }},
    {"folder",        [](Path at, Path) { mkdir(at.c_str(), 0755); }},
    {"socket",        [](Path at, Path) { mknod(at.c_str(), S_IFSOCK | 0644, 0); }},
};
// clang-format on

} // namespace

class Places : public HelperTest, public ::testing::WithParamInterface<ThingRow>
{
protected:
    Places() { put(kVictim, kVictimText); }

    // Creates the thing at a logical path.
    void place(const std::string &logical)
    {
        std::filesystem::remove_all(real(logical));
        GetParam().make(real(logical), real(kVictim));
        struct stat now = {};
        ASSERT_EQ(lstat(real(logical).c_str(), &now), 0);
        m_inode = now.st_ino;
    }

    // True if the thing is still there and the file that it may refer to is unchanged.
    bool stands(const std::string &logical) const
    {
        struct stat now = {};
        return lstat(real(logical).c_str(), &now) == 0 && now.st_ino == m_inode && contents(kVictim) == kVictimText &&
               !std::filesystem::exists(real(kVictim) + "x");
    }

private:
    ino_t m_inode = 0;
};

TEST_P(Places, TheCurrentListMustBeAPlainFile)
{
    place(current());
    EXPECT_TRUE(answers(false, {kExist, current()}));
    EXPECT_TRUE(answers(false, {kRemove, current()}));
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    EXPECT_FALSE(writeList(listText("new")));
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    put(previous(), "older");
    EXPECT_TRUE(answers(false, {kSwap, "3", current(), previous()}));
    EXPECT_TRUE(stands(current()));
    EXPECT_TRUE(answers(true, {kAdmin, current()}));
}

TEST_P(Places, ThePreviousListMustBeAPlainFile)
{
    put(current(), "old");
    place(previous());
    EXPECT_TRUE(answers(false, {kRemove, previous()}));
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    EXPECT_TRUE(answers(false, {kSwap, "3", current(), previous()}));
    EXPECT_TRUE(stands(previous()));
    EXPECT_EQ(contents(current()), "old");
}

TEST_P(Places, StagingFileAndCopyMustBePlainFiles)
{
    put(current(), "old");
    place(staging());
    EXPECT_TRUE(answers(false, {kPiece, url(), listText("new")}));
    EXPECT_TRUE(answers(false, {kPiece, url(), "later"}));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_TRUE(stands(staging()));

    place(copyName());
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    EXPECT_TRUE(stands(copyName()));
    EXPECT_EQ(contents(current()), "old");
}

INSTANTIATE_TEST_SUITE_P(Things, Places, ::testing::ValuesIn(kThings),
                         [](const auto &info) { return info.param.name; });

} // namespace bvtest
