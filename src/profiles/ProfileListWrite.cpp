// SPDX-License-Identifier: GPL-2.0-or-later
// Writes lists: sends the file's text to the helper in pieces and then asks it to commit them.
#include "profiles/ProfileOperations.h"

#include "platform/FileUrl.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfilePaths.h"
#include "profiles/RequestNames.h"
#include "profiles/TextPieces.h"

#include <array>
#include <memory>

namespace {

constexpr size_t kPieceUnits = 90000;

int32_t handOver(const std::string &xml)
{
    const std::string url = bv::fileUrl(bv::profilePaths().current);
    for (std::string &piece : splitCharEvery(xml, kPieceUnits)) {
        const std::array<std::string, 2> arguments = {url, std::move(piece)};
        if (!bv::answerIsTrue(bv::runHelper(bv::kPieceRequest, arguments), bv::kPieceRequest)) {
            bv::diagnosticLine("list not written: the helper refused a piece");
            return -1;
        }
    }
    const std::array<std::string, 1> arguments = {url};
    if (!bv::answerIsTrue(bv::runHelper(bv::kCommitRequest, arguments), bv::kCommitRequest)) {
        bv::diagnosticLine("list not written: the helper refused to commit it");
        return -1;
    }
    return 0;
}

int32_t writeLists(const ProfileList &rgb, const ProfileList &sim, const ProfileList &dst)
{
    const auto xml = bv::profileListXml(rgb, sim, dst);
    return xml ? handOver(*xml) : -1;
}

bool mayWrite()
{
    if (BVPListIsAdminProfile() != 0)
        return true;
    bv::diagnosticLine("list not written: the user may not manage profiles");
    return false;
}

} // namespace

int32_t BVPListWriteProfile_All(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst)
{
    if (!mayWrite())
        return -1;
    return bv::withoutThrowing(-1, [&] { return writeLists(*rgb, *sim, *dst); });
}

int32_t BVPListWriteProfile_All_Pap(const ProfileList *rgb, const ProfileList *sim, const ProfileList *dst,
                                    const ProfileList *rgbDelete, const ProfileList *simDelete,
                                    const ProfileList *dstDelete)
{
    if (!mayWrite())
        return -1;
    return bv::withoutThrowing(-1, [&] {
        const auto merged = std::make_unique<ProfileLists>();
        BVPListMappingProfile_All_Pap(rgb, sim, dst, &merged->rgb, &merged->sim, &merged->dst, rgbDelete, simDelete,
                                      dstDelete);
        return writeLists(merged->rgb, merged->sim, merged->dst);
    });
}

int32_t BVPListWriteProfile_Dict(const ProfileList *list, int32_t which, ProfileList *rgb, ProfileList *sim,
                                 ProfileList *dst)
{
    return bv::withoutThrowing(-1, [&] {
        const auto file = std::make_unique<ProfileLists>();
        BVPListReadProfile_All(&file->rgb, &file->sim, &file->dst); // if this fails, the lists stay empty
        const std::array<ProfileList *, 3> outputs = {rgb, sim, dst};
        const std::array<ProfileList *, 3> stored = {&file->rgb, &file->sim, &file->dst};
        for (size_t at = 0; at < outputs.size(); ++at)
            if (outputs[at])
                *outputs[at] = *stored[at];
        if (which < kProfileRGB || which > kProfileDST)
            return -1;
        const auto changed = static_cast<size_t>(which);
        *stored[changed] = *list;
        const int32_t result = BVPListWriteProfile_All(stored[0], stored[1], stored[2]);
        if (result == 0 && outputs[changed])
            *outputs[changed] = *list;
        return result;
    });
}
