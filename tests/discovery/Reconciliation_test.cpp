// SPDX-License-Identifier: GPL-2.0-or-later
// The merge of a walk's rows into the stored lists, on the test's own list files.
#include "discovery/Reconciliation.h"

#include "support/ListRoot.h"
#include "support/SampleLists.h"

#include "discovery/ProfileSpool.h"
#include "profiles/ProfileOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

using bvtest::Lists;
using testing::ElementsAre;
using testing::IsEmpty;

ProfileRecord record(int32_t index, int32_t inMenu, std::string_view fileName, int32_t location = kLocationDisk,
                     int32_t profileClass = 1)
{
    return bvtest::makeRecord(inMenu, fileName, location, index, "stored", profileClass);
}

void fill(ProfileList *list, std::initializer_list<ProfileRecord> records)
{
    *list = {};
    std::copy(records.begin(), records.end(), list->records);
    list->count = static_cast<int32_t>(records.size());
}

void spoolRows(std::initializer_list<ProfileRecord> rows)
{
    fill(&PlistForSpool, rows);
}

// The records in use as "file name/location=state".
std::vector<std::string> shown(const ProfileList &list)
{
    std::vector<std::string> texts;
    for (const ProfileRecord &row : list.records) {
        if (row.InMenu != 0 || !bv::fieldText(row.FileName).empty())
            texts.push_back(std::string(bv::fieldText(row.FileName)) + '/' + std::to_string(row.Location) + '=' +
                            std::to_string(row.InMenu));
    }
    return texts;
}

// ---- One list in memory ----

TEST(Reconciliation, RowsWithoutAMatchGoIntoTheFirstFreeSlot)
{
    const auto list = std::make_unique<ProfileList>();
    fill(list.get(), {record(1, 1, "A.ICC"), record(0, 0, ""), record(2, 5, "B.ICC")});
    ProfileRecord row = record(9, 0, "A.ICC", kLocationCard, 3);
    row.Availability = 1;
    spoolRows({row, record(9, 0, "B.ICC"), record(9, 0, "A.ICC", kLocationCard)});
    for (int32_t number = 0; number < 3; ++number)
        vRestructDetail(number, list.get());
    EXPECT_THAT(shown(*list), ElementsAre("A.ICC/4=1", "A.ICC/5=2", "B.ICC/4=2"))
        << "another location is another profile; the third row matches what the first added";
    EXPECT_EQ(list->count, 4);
    row.InMenu = 2;
    EXPECT_EQ(std::memcmp(&list->records[1], &row, sizeof(row)), 0) << "all seven fields are copied";
}

TEST(Reconciliation, NamesAreComparedOverTheWholeField)
{
    const auto list = std::make_unique<ProfileList>();
    fill(list.get(), {record(1, 1, "A.ICC")});
    list->records[0].FileName[20] = 'x'; // after the NUL
    spoolRows({record(2, 0, "A.ICC")});
    vRestructDetail(0, list.get());
    EXPECT_THAT(shown(*list), ElementsAre("A.ICC/4=1", "A.ICC/4=2"));
}

TEST(Reconciliation, CountsOutOfRangeAndFullListsAreSafe)
{
    const auto list = std::make_unique<ProfileList>();
    for (const int32_t count : {-5, 0}) {
        fill(list.get(), {record(1, 1, "A.ICC")});
        list->count = count;
        spoolRows({record(2, 0, "A.ICC")});
        vRestructDetail(0, list.get());
        EXPECT_EQ(list->records[0].InMenu, 1) << "no slot is covered by the count, so nothing matches";
        EXPECT_EQ(list->records[1].InMenu, 2);
        EXPECT_EQ(list->count, count + 1);
    }
    for (ProfileRecord &slot : list->records)
        slot = record(1, 6, "FULL.ICC");
    for (const int32_t count : {500, 100000}) {
        list->count = count;
        vRestructDetail(0, list.get());
        EXPECT_EQ(list->count, count);
    }
}

// ---- The three lists through their file ----

class ReconciliationOfFile : public testing::Test
{
protected:
    void store(const Lists &lists) { ASSERT_EQ(BVPListWriteProfile_All(&lists.rgb, &lists.sim, &lists.dst), 0); }

    std::unique_ptr<Lists> reconciled(int32_t status)
    {
        EXPECT_EQ(vRestructPlistSpool2Current(status), 0);
        auto lists = std::make_unique<Lists>();
        EXPECT_EQ(BVPListReadProfile_All(&lists->rgb, &lists->sim, &lists->dst), 0);
        return lists;
    }

    bvtest::ListRoot m_root;
    std::unique_ptr<Lists> m_stored = std::make_unique<Lists>();
};

TEST_F(ReconciliationOfFile, AGoodWalkMarksFoundAndMissingProfiles)
{
    fill(&m_stored->rgb,
         {record(1, 1, "NOT1.ICC"), record(2, 2, "NOT2.ICC"), record(3, 4, "NOT4.ICC"), record(4, 6, "USER.ICC"),
          record(5, 1, "IS1.ICC"), record(6, 4, "IS4.ICC"), record(7, 5, "IS5.ICC"), record(8, 6, "IS6.ICC")});
    store(*m_stored);
    spoolRows({record(11, 0, "IS1.ICC"), record(12, 0, "IS4.ICC"), record(13, 0, "IS5.ICC"), record(14, 0, "IS6.ICC"),
               record(15, 0, "NEW.ICC", kLocationCard, 2), record(16, 0, "SIMDST.ICC", kLocationDisk, 3)});
    const auto lists = reconciled(0);
    EXPECT_THAT(shown(lists->rgb),
                ElementsAre("NOT1.ICC/4=1", "NOT2.ICC/4=1", "NOT4.ICC/4=6", "USER.ICC/4=6", "IS1.ICC/4=2",
                            "IS4.ICC/4=4", "IS5.ICC/4=2", "IS6.ICC/4=4", "NEW.ICC/5=2"));
    EXPECT_EQ(lists->rgb.count, 9);
    EXPECT_THAT(shown(lists->sim), ElementsAre("SIMDST.ICC/4=2"));
    EXPECT_THAT(shown(lists->dst), ElementsAre("SIMDST.ICC/4=2"));
}

TEST_F(ReconciliationOfFile, AFailedWalkKeepsMenuProfilesAsUserEntries)
{
    fill(&m_stored->rgb,
         {record(1, 1, "NOT1.ICC"), record(2, 4, "MENU.ICC"), record(3, 5, "OWN.ICC"), record(0, 4, "NOINDEX.ICC")});
    fill(&m_stored->sim, {record(2, 2, "GONE.ICC", kLocationDisk, 3)});
    store(*m_stored);
    spoolRows({record(11, 0, "ARRIVED.ICC")});
    const auto lists = reconciled(1);
    EXPECT_THAT(shown(lists->rgb), ElementsAre("ARRIVED.ICC/4=2", "MENU.ICC/4=6", "OWN.ICC/4=5"))
        << "what came before the failure is merged";
    EXPECT_THAT(shown(lists->sim), IsEmpty());
}

TEST_F(ReconciliationOfFile, EachListDecidesForItself)
{
    fill(&m_stored->sim, {record(1, 4, "BOTH.ICC", kLocationDisk, 3)});
    store(*m_stored);
    spoolRows({record(2, 0, "BOTH.ICC", kLocationDisk, 3)});
    const auto lists = reconciled(0);
    EXPECT_THAT(shown(lists->sim), ElementsAre("BOTH.ICC/4=4"));
    EXPECT_THAT(shown(lists->dst), ElementsAre("BOTH.ICC/4=2"));
}

TEST_F(ReconciliationOfFile, SkipsUnacceptableRows)
{
    spoolRows({record(1, 0, "X.ICC", 3), record(2, 0, "X.ICC", 6), record(3, 0, "X.ICC", kLocationDisk, 0),
               record(4, 0, "X.ICC", kLocationDisk, 4), record(5, 0, "bad name.icc"), record(6, 0, ""),
               record(7, 0, "LONG.ICC8")});
    // A name of 32 bytes has no NUL in its field, and is longer than the rule allows.
    std::fill_n(PlistForSpool.records[5].FileName, kProfileTextBytes, 'L');
    PlistForSpool.count = 100000;
    const auto lists = reconciled(0);
    EXPECT_THAT(shown(lists->rgb), IsEmpty());
    EXPECT_THAT(shown(lists->sim), IsEmpty());
    EXPECT_THAT(shown(lists->dst), IsEmpty());
}

// Removing a record with an unacceptable name leaves a gap. The RGB list is packed before the merge. The other lists
// keep the gap, so their count covers one slot less and the last record is not found.
TEST_F(ReconciliationOfFile, OnlyTheRgbListIsPackedBeforeTheMerge)
{
    const ProfileRecord last = record(2, 4, "LAST.ICC", kLocationDisk, 3);
    fill(&m_stored->rgb, {record(1, 6, "bad name.icc"), last});
    fill(&m_stored->sim, {record(1, 6, "bad name.icc"), last});
    store(*m_stored);
    spoolRows({record(9, 0, "LAST.ICC", kLocationDisk, 3), record(9, 0, "LAST.ICC", kLocationDisk, 1)});
    const auto lists = reconciled(0);
    EXPECT_THAT(shown(lists->rgb), ElementsAre("LAST.ICC/4=4"));
    EXPECT_THAT(shown(lists->sim), ElementsAre("LAST.ICC/4=2", "LAST.ICC/4=6"));
}

TEST_F(ReconciliationOfFile, RecordsWithoutADeviceIndexAreCleanedAway)
{
    fill(&m_stored->rgb, {record(0, 6, "USER.ICC"), record(0, 4, "MENU.ICC"), record(3, 6, "KEPT.ICC")});
    store(*m_stored);
    spoolRows({});
    const auto lists = reconciled(0);
    EXPECT_THAT(shown(lists->rgb), ElementsAre("MENU.ICC/4=6", "KEPT.ICC/4=6"));
    EXPECT_EQ(lists->rgb.records[0].IndexOnDevice, 501);
}

} // namespace
