// SPDX-License-Identifier: GPL-2.0-or-later
// Profile lists for tests and benchmarks.
#pragma once

#include "profiles/ProfileList.h"

#include <memory>
#include <string>
#include <string_view>

namespace bvtest {

// The three lists of one user, zero-initialized. Too large for a small stack.
struct Lists
{
    ProfileList rgb{}, sim{}, dst{};
};

inline std::unique_ptr<Lists> makeLists()
{
    return std::make_unique<Lists>();
}

inline ProfileRecord makeRecord(int32_t inMenu, std::string_view fileName, int32_t location = kLocationDisk,
                                int32_t indexOnDevice = 0, std::string_view profileName = "", int32_t profileClass = 1)
{
    ProfileRecord record{};
    record.IndexOnDevice = indexOnDevice;
    record.InMenu = inMenu;
    record.ProfileClass = profileClass;
    record.Location = location;
    bv::setFieldText(record.FileName, fileName);
    bv::setFieldText(record.ProfileName, profileName);
    return record;
}

// Appends a record to the list.
inline void add(ProfileList &list, const ProfileRecord &record)
{
    list.records[list.count++] = record;
}

// Fills the list with 500 records. Each has its own file name; all show `profileName`.
inline void fill(ProfileList &list, std::string_view profileName = "A profile of the shop")
{
    list = ProfileList{};
    for (int slot = 0; slot < kProfileSlots; ++slot)
        add(list, makeRecord(3 + slot % 4, "PROFILE" + std::to_string(slot) + ".ICC", slot % 2 ? 5 : 4, slot + 1,
                             profileName, 1 + slot % 3));
}

} // namespace bvtest
