// The storages of the printer that can hold profiles: their codes, names and folders. Free of Qt and libcups.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

// The code of a storage in a record's Location; other values are unknown storage.
inline constexpr int32_t kLocationDisk = 4;
inline constexpr int32_t kLocationCard = 5;

namespace bv {

struct ProfileStorage
{
    int32_t location;
    const char *name;   // localisation key
    const char *folder; // of the profiles on the printer, "/" at its end
};

// In the order in which the management window offers them.
// clang-format off
inline constexpr std::array<ProfileStorage, 2> kProfileStorages = {{
    {kLocationDisk, "Disk", "/ata1a/data/USfiles/Profiles/"},
    {kLocationCard, "Card", "/ataCf1a/data/USfiles/Profiles/"},
}};
// clang-format on

// The storage of a code; null for an unknown one.
constexpr const ProfileStorage *profileStorage(int32_t location)
{
    const auto *const found = std::find_if(kProfileStorages.begin(), kProfileStorages.end(),
                                           [=](const ProfileStorage &row) { return row.location == location; });
    return found == kProfileStorages.end() ? nullptr : found;
}

} // namespace bv
