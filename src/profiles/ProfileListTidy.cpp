// SPDX-License-Identifier: GPL-2.0-or-later
// Tidies a list after a walk of the printer: clean-up, salvage, padding.
#include "profiles/ProfileOperations.h"

#include "profiles/MenuState.h"

#include <cstring>

namespace {

constexpr int32_t kNoLongerOnDevice = 501;

bool hasFileName(const ProfileRecord &record)
{
    return record.FileName[0] != '\0';
}

} // namespace

void BVPListCleanProfile_Dict(ProfileList *list)
{
    for (ProfileRecord &record : list->records) {
        if (record.IndexOnDevice != 0 || !hasFileName(record))
            continue;
        if (record.InMenu == bv::kMissingInMenu || record.InMenu == bv::kOnPrinterInMenu) {
            record.IndexOnDevice = kNoLongerOnDevice;
            record.InMenu = bv::kMissingInMenu;
        } else {
            record = ProfileRecord{};
            --list->count;
        }
    }
}

void BVPListSalvage_Dict(ProfileList *list)
{
    for (ProfileRecord &record : list->records)
        if (record.IndexOnDevice != 0 && hasFileName(record) && record.InMenu == bv::kMissingInMenu)
            record.InMenu = bv::kOwnInMenu;
}

void BVPListPaddingProfile_Dict(ProfileList *list)
{
    int from = 0;
    for (int to = 0; to < kProfileSlots; ++to) {
        if (bv::isUsed(list->records[to].InMenu))
            continue;
        for (from = from > to ? from : to + 1; from < kProfileSlots && !bv::isUsed(list->records[from].InMenu); ++from)
            ;
        if (from == kProfileSlots)
            return;
        ProfileRecord &vacated = list->records[from];
        list->records[to] = vacated;
        // The vacated slot keeps its class on purpose: tools that compare list files rely on this old behavior.
        vacated = ProfileRecord{};
        vacated.ProfileClass = list->records[to].ProfileClass;
    }
}
