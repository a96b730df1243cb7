// Reconciles what a walk brought with the stored profile lists. Core, on the spool of ProfileSpool.h.
#pragma once

#include "profiles/ProfileList.h"

#include <cstdint>

// Reads the stored lists, marks what the printer no longer reported, merges the spool's rows and writes the lists.
// `status` is the walk's: 0 when the printer answered to the end. The result of BVPListWriteProfile_All.
int32_t vRestructPlistSpool2Current(int32_t status);

// Marks the records of one list before the merge, all 500 of them; the count stays. After a good walk 1 and 2 become 1
// and 4 becomes 3; after a failed one 1 and 2 become 0 (the record's other fields stay) and 4 becomes 6.
void vDeleteMIBprofilesTemporary(int32_t status, ProfileList *list);

// Merges the spool's row (0 to 499) into one list: marks the record with the same file name and location, or copies the
// row into the first free slot. A row for which no slot is free is dropped.
void vRestructDetail(int32_t row, ProfileList *list);
