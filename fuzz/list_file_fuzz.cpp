// SPDX-License-Identifier: GPL-2.0-or-later
// Reads any bytes as a list file. All counts and texts must be within their bounds. Writing and reading the result
// again may change only texts that no file can hold.
#include "Fuzzing.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileListRead.h"

#include <cstring>
#include <unordered_set>

using fuzz::require;

namespace {

ProfileList lists[3];
ProfileList again[3];

void writeAndRead(const ProfileList (&from)[3], ProfileList (&into)[3])
{
    const std::string xml = bv::profileListXml(from[0], from[1], from[2]).value();
    std::memset(into, 0, sizeof into);
    require(bv::readLists(bv::PropertyList::fromXml(xml), &into[0], &into[1], &into[2]) == 0);
}

// A list that is written has all 1,500 slots and half a megabyte, whatever was read, and takes a hundred times as long
// as reading an input. So only the first lists of a program are written again, and then one in many, the same ones each
// time.
bool isToBeWritten()
{
    constexpr size_t kFirst = 60;
    constexpr size_t kOneIn = 256;
    static std::unordered_set<size_t> known;
    const size_t hash = std::hash<std::string_view>()({reinterpret_cast<const char *>(lists), sizeof lists});
    return known.insert(hash).second && (known.size() <= kFirst || hash % kOneIn == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    std::memset(lists, 0, sizeof lists);
    if (bv::readLists(bv::PropertyList::fromXml(fuzz::textOf(data, size)), &lists[0], &lists[1], &lists[2]) != 0)
        return 0;
    for (const ProfileList &list : lists) {
        require(list.count >= 0 && list.count <= kProfileSlots);
        for (const ProfileRecord &record : list.records)
            require(record.FileName[31] == '\0' && record.ProfileName[31] == '\0');
    }
    if (!isToBeWritten())
        return 0;
    writeAndRead(lists, again);
    writeAndRead(again, lists);
    require(std::memcmp(lists, again, sizeof lists) == 0);
    return 0;
}
