// Keeps a current list that cannot be read aside, so that it never takes the place of the last good earlier copy.
#pragma once

#include "helper/ListFolder.h"

namespace bv {

// Whether the open current list is one that no reader can read while the previous one can be read. Then the previous
// one is to stay, and the current one to be kept aside instead. The open file is then at its start, as it was before.
bool wouldLoseGoodList(const FileDescriptor &current, const ListFolder &folder, const Caller &caller,
                       const ListTarget &target);

// Whether an unreadable list is kept aside since which no readable one has been written: that one stays.
bool hasFreshUnreadable(const ListFolder &folder, const Caller &caller, const ListTarget &target);

// Notes that a readable list has been written: what is kept aside stays, but the next one may take its place. The note
// is the file's mode, 0444.
void noteReadableWritten(const ListFolder &folder, const Caller &caller, const ListTarget &target);

} // namespace bv
