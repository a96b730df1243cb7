// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: adds the stored profiles after the PPD's choices in the profile menus.
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

// The localized name of a record's storage. An empty string for an unknown storage, a null string when there is no
// localized text.
QString storageName(const ProfileRecord &record)
{
    const bv::ProfileStorage *storage = bv::profileStorage(record.Location);
    return storage ? bundleText(storage->name) : QStringLiteral("");
}

// The menu title of a profile: file name, profile name in parentheses, storage. Cut at 255 bytes.
QString profileTitle(const ProfileRecord &record, const QString &storage)
{
    std::string title(bv::fieldText(record.FileName));
    title.append("(").append(bv::fieldText(record.ProfileName)).append(")").append(storage.toStdString());
    return QString::fromUtf8(title.data(), qsizetype(std::min(title.size(), size_t{255})));
}

// Appends the profiles that the menus show. False when a storage has no localized name.
bool appendProfiles(QComboBox *menu, const ProfileList &list)
{
    bool complete = true;
    for (int32_t i = 0; i < std::min<int32_t>(list.count, kProfileSlots); ++i) {
        const ProfileRecord &record = list.records[i];
        if (!bv::isListed(record.InMenu))
            continue;
        const QString storage = storageName(record);
        if (storage.isNull())
            complete = false;
        else if (menu)
            menu->addItem(profileTitle(record, storage));
    }
    return complete;
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
            // A failure of one row is the result, even if later rows succeed.
            if (!which || !appendProfiles(menu, (*lists)[*which]))
                result = paramErr;
        }
        return result;
    });
}
