// SPDX-License-Identifier: GPL-2.0-or-later
// Merges the result of a walk, in the spool of ProfileSpool.h, into the stored profile lists.
#pragma once

#include "profiles/ProfileList.h"

#include <cstdint>

// Reads the stored lists, marks profiles that the printer no longer reports, merges the spool's rows and writes the
// lists. `status` is that of the walk; 0 means the printer answered to the end. Returns the result of
// BVPListWriteProfile_All.
int32_t vRestructPlistSpool2Current(int32_t status);

namespace bv {

// The merge alone, without reading and writing: what vRestructPlistSpool2Current makes of the stored lists.
void mergeSpool(int32_t status, ProfileLists *lists);

} // namespace bv

// Changes the states (bv::MenuState) of all 500 records of a list before the merge. The count stays. After a good walk,
// 1 and 2 become 1, and 4 becomes 3. After a failed walk, 1 and 2 become 0 (the record's other fields stay), and 4
// becomes 6.
void vDeleteMIBprofilesTemporary(int32_t status, ProfileList *list);

// Merges one row of the spool (0 to 499) into a list: marks the record with the same file name and location as found,
// or copies the row into the first free slot. Without a free slot the row is dropped.
void vRestructDetail(int32_t row, ProfileList *list);
