// SPDX-License-Identifier: GPL-2.0-or-later
// Decides when an unreadable current list is kept aside, so that it never replaces the last good previous list.
#pragma once

#include "helper/ListFolder.h"

#include <optional>

namespace bv {

// Whether the open file is a readable list. The file must be at its start, and is there again afterwards. The name is
// for the log.
bool isReadableList(const FileDescriptor &file, const std::string &name);

// Whether the previous list is there and readable. An unreadable current list must then go aside, and the previous one
// stay in place. Nothing when that cannot be found out, as on a failing disk; it must then stay as well.
std::optional<bool> hasReadablePrevious(const ListFolder &folder, const Caller &caller, const ListTarget &target);

// Whether an unreadable list is kept aside and no readable list has been written since. The kept list must then stay.
bool hasFreshUnreadable(const ListFolder &folder, const Caller &caller, const ListTarget &target);

// Notes that a readable list has been written. A list kept aside stays, but the next unreadable list may replace it.
// The note is the mode 0444 of the kept file.
void noteReadableWritten(const ListFolder &folder, const Caller &caller, const ListTarget &target);

} // namespace bv
