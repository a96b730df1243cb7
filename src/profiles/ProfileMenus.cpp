// PDECommon: the stored profiles behind the PPD's choices in the profile menus.
#include "common/PDECommon.h"

#include "platform/Bundle.h"
#include "platform/NoThrow.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileKinds.h"
#include "profiles/ProfileOperations.h"

#include <QComboBox>
#include <algorithm>
#include <array>
#include <memory>

namespace {

using ThreeLists = std::array<ProfileList, 3>;

// The menu title of a profile: file name, profile name in parentheses, storage (none where it is unknown). The bytes
// are cut at 255.
QString profileTitle(const ProfileRecord &record)
{
    std::string title(bv::fieldText(record.FileName));
    title.append("(").append(bv::fieldText(record.ProfileName)).append(")");
    if (const bv::ProfileStorage *storage = bv::profileStorage(record.Location))
        title.append(localizedString(storage->name).toStdString());
    return QString::fromUtf8(title.data(), qsizetype(std::min(title.size(), size_t{255})));
}

void appendProfiles(QComboBox *menu, const ProfileList &list)
{
    for (int32_t i = 0; i < std::min<int32_t>(list.count, kProfileSlots); ++i) {
        const ProfileRecord &record = list.records[i];
        if (bv::isListed(record.InMenu))
            menu->addItem(profileTitle(record));
    }
}

} // namespace

int32_t PDECommon::commonAddMenuFromProfilePlist(PDEControlTable table)
{
    return bv::withoutThrowing(paramErr, [&]() -> int32_t {
        const auto lists = std::make_unique<ThreeLists>();
        const int32_t read =
            BVPListReadProfile_All(&(*lists)[kProfileRGB], &(*lists)[kProfileSIM], &(*lists)[kProfileDST]);
        if (read != 0)
            return read;
        int32_t result = noErr;
        for (int16_t row = 0; table && table[row].control; ++row) {
            const auto which = bv::profileClassOfKind(table[row].profileKind);
            auto *menu = qobject_cast<QComboBox *>(table[row].control);
            // Once set, the result stays: only the last value counts, and no profile row sets it back.
            if (!which)
                result = paramErr;
            else if (menu)
                appendProfiles(menu, (*lists)[*which]);
        }
        return result;
    });
}
