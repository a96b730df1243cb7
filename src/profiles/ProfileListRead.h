// From an open list file to lists in memory. The reads of the stored file stand in ProfileOperations.h. Free of Qt and
// libcups.
#pragma once

#include "platform/PropertyList.h"
#include "profiles/ProfileList.h"

namespace bv {

// Fills the three lists. 0, or -1 when a class or one of its field dictionaries is missing; then no list is touched.
int32_t readLists(const PropertyList &file, ProfileList *rgb, ProfileList *sim, ProfileList *dst);

} // namespace bv
