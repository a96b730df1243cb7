// SPDX-License-Identifier: GPL-2.0-or-later
// Decides when an unreadable current list is kept aside, so that it never replaces the last good previous list.
#pragma once

#include "helper/ListFolder.h"

namespace bv {

// Whether the open current list is unreadable while the previous list is readable. The caller must then keep the
// current list aside and leave the previous one in place. Afterwards the open file is at its start, as before.
bool wouldLoseGoodList(const FileDescriptor &current, const ListFolder &folder, const Caller &caller,
                       const ListTarget &target);

// Whether an unreadable list is kept aside and no readable list has been written since. The kept list must then stay.
bool hasFreshUnreadable(const ListFolder &folder, const Caller &caller, const ListTarget &target);

// Notes that a readable list has been written. A list kept aside stays, but the next unreadable list may replace it.
// The note is the mode 0444 of the kept file.
void noteReadableWritten(const ListFolder &folder, const Caller &caller, const ListTarget &target);

} // namespace bv
