// SPDX-License-Identifier: GPL-2.0-or-later
// Conversion between list files and lists in memory.
#include "profiles/ProfileListFile.h"

#include "platform/FileContents.h"
#include "platform/Log.h"
#include "platform/RootPath.h"
#include "platform/Utf8.h"
#include "profiles/ProfilePaths.h"

#include <algorithm>
#include <cstring>

namespace {

struct FieldRow
{
    const char *key;
    bv::PropertyListNode ProfileFieldDictionaries::*dictionary;
};

// The fields of a class dictionary, in the order of look-up and writing.
// clang-format off
constexpr FieldRow kFields[] = {
    {cIndexOnDeviceKey, &ProfileFieldDictionaries::indexOnDevice},
    {cInMenuKey,        &ProfileFieldDictionaries::inMenu},
    {cProfileClassKey,  &ProfileFieldDictionaries::profileClass},
    {cLocationKey,      &ProfileFieldDictionaries::location},
    {cFileNameKey,      &ProfileFieldDictionaries::fileName},
    {cProfileNameKey,   &ProfileFieldDictionaries::profileName},
};
// clang-format on

// A field's text as the file stores it, without the characters that XML 1.0 does not allow (production [2] Char).
// Nothing when the field is not UTF-8.
std::optional<std::string> xmlText(std::string_view text)
{
    if (!bv::isUtf8(text))
        return std::nullopt;
    std::string kept;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, bv::utf8CharacterLength(text));
        const auto first = static_cast<unsigned char>(character[0]);
        const bool control = first < 0x20 && first != '\t' && first != '\n' && first != '\r';
        const bool noCharacter = character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF"; // U+FFFE, U+FFFF
        if (!control && !noCharacter)
            kept += character;
        text.remove_prefix(character.size());
    }
    return kept;
}

bv::PropertyList numbers(const ProfileList &list, const char *key, int32_t ProfileRecord::*field)
{
    bv::PropertyList dictionary = bv::PropertyList::dictionary();
    bv::SlotKey keys(key);
    for (int slot = 0; slot < kProfileSlots; ++slot)
        dictionary.setNumber(keys.at(slot), list.records[slot].*field);
    return dictionary;
}

bv::PropertyList texts(const ProfileList &list, const char *key, char (ProfileRecord::*field)[kProfileTextBytes])
{
    bv::PropertyList dictionary = bv::PropertyList::dictionary();
    bv::SlotKey keys(key);
    for (int slot = 0; slot < kProfileSlots; ++slot) {
        const auto text = xmlText(bv::fieldText(list.records[slot].*field));
        if (text)
            dictionary.setText(keys.at(slot), *text);
        else
            bv::diagnosticLine(bv::formatLog("%@ left out: not UTF-8", {keys.at(slot)}));
    }
    return dictionary;
}

} // namespace

void ReadDictionaryIntEntry(bv::PropertyListNode dictionary, const char *key, int32_t *out)
{
    if (const auto value = dictionary.item(key).number())
        *out = *value;
}

void ReadDictionaryStringEntry(bv::PropertyListNode dictionary, const char *key, char (&out)[kProfileTextBytes])
{
    const auto text = dictionary.item(key).text();
    if (text)
        bv::setFieldText(out, *text);
}

ProfileClassWrapper CreatePropsDictionary(int32_t which, const ProfileList *list, ProfilePropsDictionary *out)
{
    out->classDictionary = bv::PropertyList::dictionary();
    bv::PropertyList &owner = out->classDictionary;
    owner.setItem(cIndexOnDeviceKey, numbers(*list, cIndexOnDeviceKey, &ProfileRecord::IndexOnDevice));
    owner.setItem(cInMenuKey, numbers(*list, cInMenuKey, &ProfileRecord::InMenu));
    owner.setItem(cProfileClassKey, numbers(*list, cProfileClassKey, &ProfileRecord::ProfileClass));
    owner.setItem(cLocationKey, numbers(*list, cLocationKey, &ProfileRecord::Location));
    owner.setItem(cFileNameKey, texts(*list, cFileNameKey, &ProfileRecord::FileName));
    owner.setItem(cProfileNameKey, texts(*list, cProfileNameKey, &ProfileRecord::ProfileName));
    owner.setNumber(kProfileCountKey, list->count);
    for (const FieldRow &row : kFields)
        out->fields.*row.dictionary = owner.root().item(row.key);
    if (which < kProfileRGB || which > kProfileDST)
        return {};
    return {kProfileClassKeys[static_cast<size_t>(which)], owner.root()};
}

int32_t BVPListMappingGetMainDict_FromPlist(bv::PropertyList *rgb, bv::PropertyList *sim, bv::PropertyList *dst)
{
    const bv::PropertyList file = bv::readProfileListFile();
    const std::array<bv::PropertyList *, 3> outputs = {rgb, sim, dst};
    for (size_t which = 0; which < outputs.size(); ++which) {
        const bv::PropertyListNode dictionary = file.root().item(kProfileClassKeys[which]);
        if (!dictionary.isDictionary())
            return -1;
        *outputs[which] = bv::PropertyList::copyOf(dictionary);
    }
    return 0;
}

int32_t BVPListMappingGetSubDict(bv::PropertyListNode classDictionary, ProfileFieldDictionaries *fields, int32_t *count)
{
    for (const FieldRow &row : kFields) {
        const bv::PropertyListNode dictionary = classDictionary.item(row.key);
        if (!dictionary.isDictionary())
            return -1;
        fields->*row.dictionary = dictionary;
    }
    ReadDictionaryIntEntry(classDictionary, kProfileCountKey, count);
    return 0;
}

namespace bv {

SlotKey::SlotKey(std::string_view field) : m_digits(std::min(field.size(), kProfileKeyBytes - 1))
{
    std::memcpy(m_text.data(), field.data(), m_digits);
}

const char *SlotKey::at(int slot)
{
    for (size_t digit = 4; digit-- > 0; slot /= 10)
        m_text[m_digits + digit] = static_cast<char>('0' + slot % 10);
    return m_text.data();
}

std::optional<int> SlotKey::slotOf(std::string_view key) const
{
    constexpr size_t kDigits = 4;
    if (key.size() != m_digits + kDigits || !key.starts_with(std::string_view(m_text.data(), m_digits)))
        return std::nullopt;
    int slot = 0;
    for (const char digit : key.substr(m_digits)) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        slot = slot * 10 + (digit - '0');
    }
    return slot;
}

PropertyList readProfileListFile()
{
    const std::string path = mapRootPath(profilePaths().current);
    const auto text = fileContents(path, kPlistMaximumBytes);
    return text ? PropertyList::fromXml(*text) : PropertyList();
}

bool isCompleteProfileList(std::string_view xml)
{
    const PropertyList file = PropertyList::fromXml(xml);
    return std::all_of(kProfileClassKeys.begin(), kProfileClassKeys.end(), [&](const char *key) {
        ProfileFieldDictionaries fields;
        int32_t count = 0;
        return BVPListMappingGetSubDict(file.root().item(key), &fields, &count) == 0;
    });
}

std::optional<std::string> profileListXml(const ProfileList &rgb, const ProfileList &sim, const ProfileList &dst)
{
    PropertyList root = PropertyList::dictionary();
    const std::array<const ProfileList *, 3> lists = {&rgb, &sim, &dst};
    for (size_t which = 0; which < lists.size(); ++which) {
        ProfilePropsDictionary props;
        const ProfileClassWrapper wrapper = CreatePropsDictionary(static_cast<int32_t>(which), lists[which], &props);
        root.setItem(wrapper.key, std::move(props.classDictionary));
    }
    root.setNumber(cPlistVersionKey, 1);
    return root.toXml();
}

} // namespace bv
