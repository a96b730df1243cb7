// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the list and the folder of the profiles that a row can choose.
#include "profiles/ProfileKinds.h"

namespace bv {

namespace {

constexpr size_t kDevicePathLength = 96;

} // namespace

std::optional<ProfileClassIndex> profileClassOfKind(int16_t profileKind)
{
    switch (profileKind) {
    case 1:
        return kProfileRGB;
    case 2:
        return kProfileDST;
    case 3:
        return kProfileSIM;
    default:
        return std::nullopt;
    }
}

std::string devicePath(const ProfileRecord &record)
{
    const ProfileStorage *storage = profileStorage(record.Location);
    std::string path(storage ? storage->folder : "");
    path.append(fieldText(record.FileName));
    path.resize(std::min(path.size(), kDevicePathLength));
    return path;
}

} // namespace bv
