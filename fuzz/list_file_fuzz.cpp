// SPDX-License-Identifier: GPL-2.0-or-later
// Reads any bytes as a list file. All counts and texts must be within their bounds. Writing and reading the result
// again may change only texts that no file can hold.
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileListRead.h"

#include <cstdlib>
#include <cstring>

namespace {

ProfileList lists[3];
ProfileList again[3];

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void writeAndRead(const ProfileList (&from)[3], ProfileList (&into)[3])
{
    const std::string xml = bv::profileListXml(from[0], from[1], from[2]).value();
    std::memset(into, 0, sizeof into);
    require(bv::readLists(bv::PropertyList::fromXml(xml), &into[0], &into[1], &into[2]) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    std::memset(lists, 0, sizeof lists);
    if (bv::readLists(bv::PropertyList::fromXml(text), &lists[0], &lists[1], &lists[2]) != 0)
        return 0;
    for (const ProfileList &list : lists) {
        require(list.count >= 0 && list.count <= kProfileSlots);
        for (const ProfileRecord &record : list.records)
            require(record.FileName[31] == '\0' && record.ProfileName[31] == '\0');
    }
    writeAndRead(lists, again);
    writeAndRead(again, lists);
    require(std::memcmp(lists, again, sizeof lists) == 0);
    return 0;
}
