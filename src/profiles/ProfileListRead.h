// SPDX-License-Identifier: GPL-2.0-or-later
// Converts an open list file to lists in memory. ProfileOperations.h has the functions that also open the file. Free of
// Qt and libcups.
#pragma once

#include "platform/PropertyList.h"
#include "profiles/ProfileList.h"

namespace bv {

// Fills the three lists. Returns 0, or -1 when a class or a field dictionary is missing; the lists are then unchanged.
int32_t readLists(const PropertyList &file, ProfileList *rgb, ProfileList *sim, ProfileList *dst);

} // namespace bv
