// SPDX-License-Identifier: GPL-2.0-or-later
// Brings the stored profile lists in line with the rows of the latest walk.
#include "discovery/Reconciliation.h"

#include "discovery/FileNameRule.h"
#include "discovery/ProfileSpool.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileOperations.h"

#include <algorithm>
#include <cstring>
#include <span>

namespace {

struct StateChange
{
    bv::MenuState before;
    bv::MenuState after;
};

// clang-format off
// After a good walk: profiles count as missing until the walk's rows are merged.
constexpr StateChange kAnsweredChanges[] = {
    {bv::kOnPrinter,       bv::kMissing},
    {bv::kOnPrinterInMenu, bv::kMissingInMenu},
};
// After a failed walk: profiles in the menus become the user's own, the others are removed.
constexpr StateChange kFailedChanges[] = {
    {bv::kMissing,         bv::kFreeSlot},
    {bv::kOnPrinter,       bv::kFreeSlot},
    {bv::kOnPrinterInMenu, bv::kOwnInMenu},
};
// The walk found a profile that is in the list.
constexpr StateChange kMatchChanges[] = {
    {bv::kMissing,       bv::kOnPrinter},
    {bv::kOwn,           bv::kOnPrinter},
    {bv::kMissingInMenu, bv::kOnPrinterInMenu},
    {bv::kOwnInMenu,     bv::kOnPrinterInMenu},
};
// clang-format on

void changeState(ProfileRecord *record, std::span<const StateChange> changes)
{
    for (const StateChange &change : changes) {
        if (record->InMenu == change.before) {
            record->InMenu = change.after;
            return;
        }
    }
}

// The number of slots that a count covers. Counts are not corrected: they can be below 0 or above 500.
int32_t coveredSlots(int32_t count)
{
    return std::clamp(count, 0, kProfileSlots);
}

// The same file on the same storage. All 32 bytes of the names are compared, also those after a NUL.
bool sameFile(const ProfileRecord &left, const ProfileRecord &right)
{
    return std::memcmp(left.FileName, right.FileName, kProfileTextBytes) == 0 && left.Location == right.Location;
}

// Removes the record if its file name breaks the printer's rule. Returns whether it did.
bool removeMisnamed(ProfileList *list, int32_t slot)
{
    ProfileRecord &record = list->records[slot];
    const std::string_view name = bv::fieldText(record.FileName);
    if (name.empty() || bJudgement8point3Format(name))
        return false;
    record = {};
    --list->count;
    return true;
}

void mergeRow(int32_t row, ProfileList *rgb, ProfileList *sim, ProfileList *dst)
{
    const ProfileRecord &record = PlistForSpool.records[row];
    if (!bv::profileStorage(record.Location) || !bJudgement8point3Format(bv::fieldText(record.FileName)))
        return;
    switch (record.ProfileClass) {
    case 1:
    case 2:
        vRestructDetail(row, rgb);
        break;
    case 3:
        vRestructDetail(row, sim);
        vRestructDetail(row, dst);
        break;
    default:
        break;
    }
}

} // namespace

void vDeleteMIBprofilesTemporary(int32_t status, ProfileList *list)
{
    const std::span<const StateChange> changes =
        status == 0 ? std::span<const StateChange>(kAnsweredChanges) : kFailedChanges;
    for (ProfileRecord &record : list->records)
        changeState(&record, changes);
}

void vRestructDetail(int32_t row, ProfileList *list)
{
    const ProfileRecord &reported = PlistForSpool.records[row];
    ProfileRecord *const end = list->records + coveredSlots(list->count);
    ProfileRecord *const match = std::find_if(
        list->records, end, [&reported](const ProfileRecord &record) { return sameFile(record, reported); });
    if (match != end) {
        // Only the state changes: a known profile keeps its other fields.
        changeState(match, kMatchChanges);
        return;
    }
    const auto slot = std::find_if(std::begin(list->records), std::end(list->records),
                                   [](const ProfileRecord &record) { return !bv::isUsed(record.InMenu); });
    if (slot == std::end(list->records))
        return;
    *slot = reported;
    slot->InMenu = bv::kOnPrinter;
    ++list->count;
}

void bv::mergeSpool(int32_t status, ProfileLists *lists)
{
    ProfileList *const all[] = {&lists->rgb, &lists->sim, &lists->dst};

    for (ProfileList *list : all)
        vDeleteMIBprofilesTemporary(status, list);

    bool removed = false;
    for (int32_t slot = 0; slot < kProfileSlots; ++slot) {
        for (ProfileList *list : all)
            removed |= removeMisnamed(list, slot);
    }
    // The other two lists keep their gaps on purpose. The rows merged below fill them: users are used to that order in
    // the menus.
    if (removed)
        BVPListPaddingProfile_Dict(&lists->rgb);

    const int32_t rows = coveredSlots(PlistForSpool.count);
    for (int32_t row = 0; row < rows; ++row)
        mergeRow(row, &lists->rgb, &lists->sim, &lists->dst);

    for (ProfileList *list : all) {
        BVPListCleanProfile_Dict(list);
        BVPListPaddingProfile_Dict(list);
        BVPListSalvage_Dict(list);
    }
}

int32_t vRestructPlistSpool2Current(int32_t status)
{
    ProfileLists lists{};
    BVPListReadProfile_All(&lists.rgb, &lists.sim, &lists.dst);
    bv::mergeSpool(status, &lists);
    return BVPListWriteProfile_All(&lists.rgb, &lists.sim, &lists.dst);
}
