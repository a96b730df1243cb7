// Tidying of a list after the printer was asked: clean-up, salvage, padding.
#include "profiles/ProfileOperations.h"

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
        if (record.InMenu == 3 || record.InMenu == 4) {
            record.IndexOnDevice = kNoLongerOnDevice;
            record.InMenu = 3;
        } else {
            record = ProfileRecord{};
            --list->count;
        }
    }
}

void BVPListSalvage_Dict(ProfileList *list)
{
    for (ProfileRecord &record : list->records)
        if (record.IndexOnDevice != 0 && hasFileName(record) && record.InMenu == 3)
            record.InMenu = 6;
}

void BVPListPaddingProfile_Dict(ProfileList *list)
{
    int from = 0;
    for (int to = 0; to < kProfileSlots; ++to) {
        if (list->records[to].InMenu != 0)
            continue;
        for (from = from > to ? from : to + 1; from < kProfileSlots && list->records[from].InMenu == 0; ++from)
            ;
        if (from == kProfileSlots)
            return;
        ProfileRecord &vacated = list->records[from];
        list->records[to] = vacated;
        // The vacated slot keeps its class: this is intended.
        vacated = ProfileRecord{};
        vacated.ProfileClass = list->records[to].ProfileClass;
    }
}
