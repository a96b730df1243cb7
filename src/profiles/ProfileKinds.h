// How a row of the advanced pane finds its stored profiles: list and storage folder.
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

} // namespace bv
