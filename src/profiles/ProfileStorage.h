// SPDX-License-Identifier: GPL-2.0-or-later
// The storages of the printer that can hold profiles: their codes, names and folders. Free of Qt and libcups.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

// Codes of the storages in a record's Location. Any other value is an unknown storage.
inline constexpr int32_t kLocationDisk = 4;
inline constexpr int32_t kLocationCard = 5;

namespace bv {

struct ProfileStorage
{
    int32_t location;
    const char *name;   // localization key
    const char *folder; // of the profiles on the printer, with "/" at the end
};

// In the order in which the management window offers them.
// clang-format off
inline constexpr std::array<ProfileStorage, 2> kProfileStorages = {{
    {kLocationDisk, "Disk", "/ata1a/data/USfiles/Profiles/"},
    {kLocationCard, "Card", "/ataCf1a/data/USfiles/Profiles/"},
}};
// clang-format on

// The storage with the code; null for an unknown code.
constexpr const ProfileStorage *profileStorage(int32_t location)
{
    const auto *const found = std::find_if(kProfileStorages.begin(), kProfileStorages.end(),
                                           [=](const ProfileStorage &row) { return row.location == location; });
    return found == kProfileStorages.end() ? nullptr : found;
}

} // namespace bv
