// How a row of the advanced pane finds its stored profiles: list, storage folder and its encoding.
#pragma once

#include "common/PDEControlItem.h"
#include "profiles/ProfileList.h"

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// The list of a row's profile kind (1 RGB, 2 DST, 3 SIM); nothing for any other kind.
std::optional<ProfileClassIndex> profileClassOfKind(int16_t profileKind);

// The path of a profile on the printer: the folder of its storage (none for unknown storage) and its file name.
std::string devicePath(const ProfileRecord &record);

// A path as a ticket carries it: each byte as two characters, "0" plus its high and its low four bits.
std::string encodeDevicePath(std::string_view path);
// The bytes that an encoded text stands for; an odd last character is paired with a NUL.
std::string decodeDevicePath(std::string_view text);

} // namespace bv
