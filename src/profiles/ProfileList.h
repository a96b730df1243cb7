// One class of the stored colour profiles in memory: 500 fixed records and a count. Free of Qt and libcups.
// The records are plain data: zeroing, copying and comparing them is whole-record work.
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
    int32_t IndexOnDevice;               // index in the printer's profile table; 0 none, 501 kept without one
    int32_t InMenu;                      // a bv::MenuState; other numbers only from a file
    int32_t ProfileClass;                // as the printer reports it
    char FileName[kProfileTextBytes];    // UTF-8; may fill the field without a NUL when it comes from a walk
    char ProfileName[kProfileTextBytes]; // likewise
    int32_t Location;                    // kLocationDisk, kLocationCard, or other
    int32_t Availability;                // moved and cleared with the record, never stored in the file
};
static_assert(sizeof(ProfileRecord) == 84 && offsetof(ProfileRecord, FileName) == 12 &&
              offsetof(ProfileRecord, ProfileName) == 44 && offsetof(ProfileRecord, Location) == 76);

struct ProfileList
{
    ProfileRecord records[kProfileSlots];
    int32_t count;
};
static_assert(sizeof(ProfileList) == size_t{84} * kProfileSlots + 4);

// The lists of one file: 126 kB, too much for a small stack.
struct ProfileLists
{
    ProfileList rgb, sim, dst;
};

namespace bv {

// The text of a 32-byte field up to its first NUL; never runs past the field.
std::string_view fieldText(const char (&field)[kProfileTextBytes]);

// Fills a field with at most 31 bytes of the text, NUL-padded; a character may be cut in the middle.
void setFieldText(char (&field)[kProfileTextBytes], std::string_view text);

} // namespace bv
