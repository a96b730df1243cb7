// What stands in the place of a list, its copy or the staging file is used only if it is the user's plain file.
#include "helper/HelperFixture.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace bvtest {

namespace {

constexpr char kVictim[] = "/victim"; // logical: beside the folder, in the same file system
constexpr char kVictimText[] = "must stay as it is";

enum class Thing { Link, DanglingLink, HardLink, Fifo, Folder, Socket };

struct ThingRow
{
    const char *name;
    Thing thing;
};

// clang-format off
constexpr ThingRow kThings[] = {
    {"symbolic link", Thing::Link},
    {"dangling link", Thing::DanglingLink},
    {"hard link",     Thing::HardLink},
    {"FIFO",          Thing::Fifo},
    {"folder",        Thing::Folder},
    {"socket",        Thing::Socket},
};
// clang-format on

} // namespace

class Places : public HelperTest, public ::testing::WithParamInterface<ThingRow>
{
protected:
    Places() { put(kVictim, kVictimText); }

    // Puts the thing at a logical path.
    void place(const std::string &logical) const
    {
        const std::string path = real(logical);
        std::filesystem::remove_all(path);
        switch (GetParam().thing) {
        case Thing::Link:
            return std::filesystem::create_symlink(real(kVictim), path);
        case Thing::DanglingLink:
            return std::filesystem::create_symlink(real("/nothing"), path);
        case Thing::HardLink:
            return std::filesystem::create_hard_link(real(kVictim), path);
        case Thing::Fifo:
            ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
            return;
        case Thing::Folder:
            std::filesystem::create_directory(path);
            return;
        case Thing::Socket:
            ASSERT_EQ(mknod(path.c_str(), S_IFSOCK | 0644, 0), 0);
            return;
        }
    }

    // Whether the same thing is still there and what it may lead to is untouched.
    bool stands(const std::string &logical) const
    {
        struct stat now = {};
        return lstat(real(logical).c_str(), &now) == 0 && now.st_ino == m_inode && contents(kVictim) == kVictimText &&
               !std::filesystem::exists(real("/nothing"));
    }

    void note(const std::string &logical)
    {
        struct stat now = {};
        ASSERT_EQ(lstat(real(logical).c_str(), &now), 0);
        m_inode = now.st_ino;
    }

private:
    ino_t m_inode = 0;
};

TEST_P(Places, OfTheCurrentList)
{
    place(current());
    note(current());
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

TEST_P(Places, OfThePreviousList)
{
    put(current(), "old");
    place(previous());
    note(previous());
    EXPECT_TRUE(answers(false, {kRemove, previous()}));
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    EXPECT_TRUE(answers(false, {kSwap, "3", current(), previous()}));
    EXPECT_TRUE(stands(previous()));
    EXPECT_EQ(contents(current()), "old");
}

TEST_P(Places, OfTheStagingFileAndTheCopy)
{
    put(current(), "old");
    place(staging());
    note(staging());
    EXPECT_TRUE(answers(false, {kPiece, url(), listText("new")}));
    EXPECT_TRUE(answers(false, {kPiece, url(), "later"}));
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_TRUE(stands(staging()));

    place(previous() + ".copy");
    note(previous() + ".copy");
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    EXPECT_TRUE(stands(previous() + ".copy"));
    EXPECT_EQ(contents(current()), "old");
}

INSTANTIATE_TEST_SUITE_P(Things, Places, ::testing::ValuesIn(kThings), [](const auto &info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

} // namespace bvtest
