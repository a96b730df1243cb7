// SPDX-License-Identifier: GPL-2.0-or-later
// The list and the printer folder of the stored profiles of a row of the advanced pane.
#pragma once

#include "common/PDEControlItem.h"
#include "profiles/ProfileList.h"

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// The list for a row's profile kind: 1 RGB, 2 DST, 3 SIM. Nothing for any other kind.
std::optional<ProfileClassIndex> profileClassOfKind(int16_t profileKind);

// The path of a profile on the printer: the folder of its storage and its file name. For an unknown storage, only the
// file name.
std::string devicePath(const ProfileRecord &record);

} // namespace bv
