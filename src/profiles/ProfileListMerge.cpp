// SPDX-License-Identifier: GPL-2.0-or-later
// Merges edited lists with the lists of the file.
#include "profiles/ProfileOperations.h"

#include "platform/NoThrow.h"
#include "profiles/MenuState.h"

#include <algorithm>
#include <memory>
#include <span>

namespace {

// The records that the list's count covers. A wrong count is limited to the list's 500 slots. Empty for a null list.
std::span<const ProfileRecord> usedRecords(const ProfileList *list)
{
    if (!list)
        return {};
    return {list->records, static_cast<size_t>(std::clamp(list->count, 0, kProfileSlots))};
}

bool holdsProfile(const ProfileList *list, const ProfileRecord &wanted)
{
    const auto records = usedRecords(list);
    return std::any_of(records.begin(), records.end(), [&](const ProfileRecord &record) {
        return record.Location == wanted.Location && bv::fieldText(record.FileName) == bv::fieldText(wanted.FileName);
    });
}

} // namespace

void BVPListMapping_Pap(const ProfileList *edited, const ProfileList *fromFile, ProfileList *out,
                        const ProfileList *excluded)
{
    int32_t filled = 0;
    const auto append = [&](const ProfileRecord &record) {
        if (filled < kProfileSlots)
            out->records[filled++] = record;
    };
    // Profiles that the printer has stay in the file, although the window of a local queue does not list them.
    for (const ProfileRecord &record : usedRecords(fromFile))
        if (bv::isOnPrinter(record.InMenu) && !holdsProfile(excluded, record) && !holdsProfile(edited, record))
            append(record);
    for (const ProfileRecord &record : usedRecords(edited))
        append(record);
    out->count = filled;
}

int32_t BVPListMappingProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                      ProfileList *rgbOut, ProfileList *simOut, ProfileList *dstOut,
                                      const ProfileList *rgbDelete, const ProfileList *simDelete,
                                      const ProfileList *dstDelete)
{
    std::unique_ptr<ProfileLists> file;
    const int32_t read = bv::withoutThrowing(-1, [&] {
        file = std::make_unique<ProfileLists>();
        return BVPListReadProfile_All(&file->rgb, &file->sim, &file->dst);
    });
    // If the file cannot be read, its lists count as empty.
    BVPListMapping_Pap(rgb, read == 0 ? &file->rgb : nullptr, rgbOut, rgbDelete);
    BVPListMapping_Pap(sim, read == 0 ? &file->sim : nullptr, simOut, simDelete);
    BVPListMapping_Pap(dst, read == 0 ? &file->dst : nullptr, dstOut, dstDelete);
    return 0;
}
