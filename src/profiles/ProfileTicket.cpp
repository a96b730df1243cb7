// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: stores a chosen profile in the queue's dictionary of the ticket and reads it back.
#include "common/PDECommon.h"

#include "common/AsciiText.h"
#include "platform/NoThrow.h"
#include "profiles/DevicePath.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileKinds.h"
#include "profiles/ProfileOperations.h"

#include <QStringDecoder>
#include <algorithm>
#include <memory>
#include <optional>

namespace {

constexpr size_t kEncodedPathLimit = 1023;

// The key of a row's entry. Nothing when the row's keyword is not ASCII; such a row has no entries.
std::optional<QString> entryKey(const PDEControlItem *item, const char *suffix)
{
    auto key = asciiText(item->ppdKey);
    if (key)
        key->append(QLatin1String(suffix));
    return key;
}

void setEntry(const bv::PrintDictionaryRef &dict, const std::optional<QString> &key, const QString &value)
{
    if (key)
        dict->setValue(*key, bv::PrintValue(value));
}

bv::PrintValue entryOf(const bv::PrintDictionaryRef &dict, const std::optional<QString> &key)
{
    return key ? dict->value(*key) : bv::PrintValue();
}

// Calls `visit(record, number)` for each record that is in the menus, numbered from 1, until `visit` returns true.
template <typename Visit> void visitNumbered(const ProfileList &list, Visit visit)
{
    int16_t number = 0;
    for (int32_t i = 0; i < std::min<int32_t>(list.count, kProfileSlots); ++i) {
        if (bv::isInMenu(list.records[i].InMenu) && visit(list.records[i], ++number))
            return;
    }
}

// The stored list of a row's class. A list that cannot be read is empty.
std::unique_ptr<ProfileList> rowsList(ProfileClassIndex which)
{
    auto list = std::make_unique<ProfileList>();
    BVPListReadProfile_Dict(list.get(), which);
    return list;
}

// The printer path of the profile with the number. Empty when the list has no such number.
std::string numberedPath(ProfileClassIndex which, int16_t wanted)
{
    std::string path;
    visitNumbered(*rowsList(which), [&](const ProfileRecord &record, int16_t number) {
        if (number != wanted)
            return false;
        path = bv::devicePath(record);
        return true;
    });
    return path;
}

// The number of the profile with the path, on a known storage. 0 when the list has none.
int16_t numberOfPath(ProfileClassIndex which, const QString &wanted)
{
    int16_t position = 0;
    visitNumbered(*rowsList(which), [&](const ProfileRecord &record, int16_t number) {
        if (!bv::profileStorage(record.Location) || QString::fromStdString(bv::devicePath(record)) != wanted)
            return false;
        position = number;
        return true;
    });
    return position;
}

// Decodes the printer path of a stored entry. A null string when the entry holds none.
QString storedPath(const bv::PrintValue &entry)
{
    const QString *text = entry.string();
    const bool ascii = text && std::all_of(text->begin(), text->end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii || size_t(text->size()) > kEncodedPathLimit)
        return {};
    std::string path = bv::decodeDevicePath(text->toStdString());
    path.resize(std::min(path.size(), path.find('\0')));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(path.data(), qsizetype(path.size())));
    return decoder.hasError() ? QString() : decoded;
}

} // namespace

int32_t PDECommon::commonSetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                               int16_t select)
{
    const auto which = bv::profileClassOfKind(item->profileKind);
    if (!dict || !which)
        return -1;
    return bv::withoutThrowing(-1, [&] {
        const std::string path = numberedPath(*which, select);
        if (item->ppdChoices && !item->ppdChoices->empty()) {
            const PPDChoiceEntry &first = item->ppdChoices->front();
            dict->setValue(first[0], bv::PrintValue(first[2]));
        }
        setEntry(dict, entryKey(item, "CustomFilename"), QString::fromStdString(bv::encodeDevicePath(path)));
        return commonSetTicketAddedProfileFlag(item, dict, QStringLiteral("True"));
    });
}

int16_t PDECommon::commonGetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict)
{
    const auto which = bv::profileClassOfKind(item->profileKind);
    if (!dict || !which)
        return -1;
    return bv::withoutThrowing(-1, [&]() -> int16_t {
        const QString wanted = storedPath(entryOf(dict, entryKey(item, "CustomFilename")));
        return wanted.isEmpty() ? 0 : numberOfPath(*which, wanted);
    });
}

int32_t PDECommon::commonSetTicketAddedProfileFlag(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                                   const QString &flag)
{
    if (dict && bv::profileClassOfKind(item->profileKind))
        setEntry(dict, entryKey(item, "Custom"), flag);
    return 0;
}

bv::PrintValue PDECommon::commonGetTicketAddedProfileFlag(const PDEControlItem *item,
                                                          const bv::PrintDictionaryRef &dict)
{
    if (!dict || !bv::profileClassOfKind(item->profileKind))
        return {};
    return entryOf(dict, entryKey(item, "Custom"));
}
