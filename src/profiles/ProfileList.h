// SPDX-License-Identifier: GPL-2.0-or-later
// One class of the stored color profiles in memory: 500 fixed records and a count. Free of Qt and libcups. Records are
// plain data, so they can be zeroed, copied and compared as a whole.
#pragma once

#include "profiles/ProfileStorage.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

inline constexpr int kProfileSlots = 500;
inline constexpr size_t kProfileTextBytes = 32;

// Class indexes, in the order in which the three lists are always passed.
enum ProfileClassIndex : int32_t { kProfileRGB = 0, kProfileSIM = 1, kProfileDST = 2 };

struct ProfileRecord
{
    int32_t IndexOnDevice;               // index in the printer's profile table; 0: none; 501: kept without one
    int32_t InMenu;                      // a bv::MenuState; a file may bring other numbers
    int32_t ProfileClass;                // as the printer reports it
    char FileName[kProfileTextBytes];    // UTF-8; without a NUL when a text from a walk fills the field
    char ProfileName[kProfileTextBytes]; // likewise
    int32_t Location;                    // kLocationDisk, kLocationCard, or other
    int32_t Availability;                // moved and cleared with the record, not stored in the file
};
static_assert(sizeof(ProfileRecord) == 84 && offsetof(ProfileRecord, FileName) == 12 &&
              offsetof(ProfileRecord, ProfileName) == 44 && offsetof(ProfileRecord, Location) == 76);

struct ProfileList
{
    ProfileRecord records[kProfileSlots];
    int32_t count;
};
static_assert(sizeof(ProfileList) == size_t{84} * kProfileSlots + 4);

// The lists of one file. At 126 kB it is too large for a small stack: allocate it on the heap.
struct ProfileLists
{
    ProfileList rgb, sim, dst;
};

namespace bv {

// The text of a field up to its first NUL, or the whole field when it has none. The view points into the field.
std::string_view fieldText(const char (&field)[kProfileTextBytes]);

// Stores at most 31 bytes of the text and fills the rest with NULs. A character may be cut in the middle.
void setFieldText(char (&field)[kProfileTextBytes], std::string_view text);

} // namespace bv
