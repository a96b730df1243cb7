// SPDX-License-Identifier: GPL-2.0-or-later
// Merging, tidying and checking of lists in memory.
#include "profiles/ProfileOperations.h"
#include "profiles/ProfileListFile.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <cstring>
#include <gmock/gmock.h>

namespace {

using bvtest::add;
using bvtest::Lists;
using bvtest::makeLists;
using bvtest::makeRecord;
using testing::ElementsAre;

// "name:code@location" of each record that the count covers.
std::vector<std::string> shown(const ProfileList &list)
{
    std::vector<std::string> texts;
    for (int slot = 0; slot < list.count; ++slot) {
        const ProfileRecord &record = list.records[slot];
        texts.push_back(std::string(bv::fieldText(record.FileName)) + ':' + std::to_string(record.InMenu) + '@' +
                        std::to_string(record.Location));
    }
    return texts;
}

// The three lists of one merge.
struct Merge
{
    std::unique_ptr<Lists> lists = makeLists();
    ProfileList &edited = lists->rgb;
    ProfileList &file = lists->sim;
    ProfileList &excluded = lists->dst;
    std::unique_ptr<ProfileList> out = std::make_unique<ProfileList>();
    void run() { BVPListMapping_Pap(&edited, &file, out.get(), &excluded); }
};

TEST(Merge, CarriesOver2And4ThatAreNeitherEditedNorExcludedInFileOrder)
{
    Merge merge;
    for (int code = 0; code <= 6; ++code)
        add(merge.file, makeRecord(code, "code" + std::to_string(code)));
    add(merge.file, makeRecord(2, "same.icc"));   // edited on the card only: carried over
    add(merge.file, makeRecord(4, "edited.icc")); // edited: the edited record is kept
    add(merge.file, makeRecord(2, "gone.icc"));   // excluded
    add(merge.excluded, makeRecord(1, "gone.icc"));
    add(merge.excluded, makeRecord(1, "code2", kLocationCard)); // another storage: excludes nothing
    add(merge.edited, makeRecord(6, "same.icc", kLocationCard));
    add(merge.edited, makeRecord(6, "edited.icc"));
    add(merge.edited, makeRecord(6, "gone.icc")); // exclusion does not affect the edited list
    merge.run();
    EXPECT_THAT(shown(*merge.out), ElementsAre("code2:2@4", "code4:4@4", "same.icc:2@4", "same.icc:6@5",
                                               "edited.icc:6@4", "gone.icc:6@4"));
}

TEST(Merge, IsCutAt500AndStaysWithinTheLists)
{
    Merge merge;
    bvtest::fill(merge.edited);
    bvtest::fill(merge.file);
    for (ProfileRecord &record : merge.file.records)
        record.Location = 6, record.InMenu = 2;
    merge.file.count = 300;
    merge.run();
    EXPECT_EQ(merge.out->count, 500);
    EXPECT_EQ(merge.out->records[299].Location, 6);
    EXPECT_EQ(std::memcmp(&merge.out->records[300], &merge.edited.records[0], 200 * sizeof(ProfileRecord)), 0);

    for (const int32_t lie : {501, 2147483647, -1, -2147483647 - 1}) {
        merge.edited.count = merge.file.count = merge.excluded.count = lie;
        merge.run();
        EXPECT_EQ(merge.out->count, lie > 0 ? 500 : 0);
    }
}

TEST(CleanUp, KeepsMenuEntriesAsNoLongerOnTheDeviceAndClearsTheRest)
{
    struct Row
    {
        int32_t index;
        const char *name;
        int32_t code;
        int32_t indexAfter, codeAfter;
        bool cleared;
    };
    // clang-format off
    const Row rows[] = {
        {0, "a", 0, 0,   0, true},
        {0, "a", 2, 0,   0, true},
        {0, "a", 3, 501, 3, false},
        {0, "a", 4, 501, 3, false},
        {0, "a", 6, 0,   0, true},
        {7, "a", 1, 7,   1, false},
        {0, "",  1, 0,   1, false},
    };
    // clang-format on
    for (const Row &row : rows) {
        const auto list = std::make_unique<ProfileList>();
        list->count = 5;
        list->records[499] = makeRecord(row.code, row.name, 4, row.index, "name", 9);
        list->records[499].Availability = 8;
        BVPListCleanProfile_Dict(list.get());
        const ProfileRecord &record = list->records[499];
        EXPECT_EQ(record.IndexOnDevice, row.indexAfter);
        EXPECT_EQ(record.InMenu, row.codeAfter);
        EXPECT_EQ(record.ProfileClass, row.cleared ? 0 : 9);
        EXPECT_EQ(record.Availability, row.cleared ? 0 : 8);
        EXPECT_EQ(bv::fieldText(record.ProfileName), row.cleared ? "" : "name");
        EXPECT_EQ(list->count, row.cleared ? 4 : 5);
    }
}

TEST(Salvage, OnlyANamedCode3WithADeviceIndexBecomes6)
{
    const auto list = std::make_unique<ProfileList>();
    list->records[0] = makeRecord(3, "a", 4, 501);
    list->records[1] = makeRecord(3, "a", 4, 0);
    list->records[2] = makeRecord(3, "", 4, 1);
    list->records[3] = makeRecord(4, "a", 4, 1);
    list->records[499] = makeRecord(3, "a", 5, -1);
    BVPListSalvage_Dict(list.get());
    const int32_t codes[] = {list->records[0].InMenu, list->records[1].InMenu, list->records[2].InMenu,
                             list->records[3].InMenu, list->records[499].InMenu};
    EXPECT_THAT(codes, ElementsAre(6, 3, 3, 4, 6));
}

TEST(Padding, PacksRecordsInUseAndLeavesTheClassBehind)
{
    const auto list = std::make_unique<ProfileList>();
    list->count = 9;
    list->records[0] = makeRecord(1, "a");
    list->records[1] = makeRecord(0, "rest");
    list->records[3] = makeRecord(3, "d", 5, 4, "D", 7);
    list->records[3].Availability = 2;
    list->records[499] = makeRecord(6, "z", 4, 0, "", 8);
    const ProfileRecord moved = list->records[3];
    BVPListPaddingProfile_Dict(list.get());
    EXPECT_EQ(std::memcmp(&list->records[1], &moved, sizeof moved), 0);
    EXPECT_EQ(bv::fieldText(list->records[2].FileName), "z");
    for (const auto &[slot, profileClass] : {std::pair(3, 7), std::pair(499, 8)}) {
        ProfileRecord vacated{};
        vacated.ProfileClass = profileClass;
        EXPECT_EQ(std::memcmp(&list->records[slot], &vacated, sizeof vacated), 0) << slot;
    }
    EXPECT_EQ(list->count, 9);
}

} // namespace
