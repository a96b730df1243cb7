// SPDX-License-Identifier: GPL-2.0-or-later
// The list file: its keys, its dictionaries, and the conversion between them and lists in memory. Free of Qt and
// libcups. The file is an XML property list: the root holds three class dictionaries. Each has the count and six field
// dictionaries of 500 slots ("InMenu0000" to "InMenu0499").
#pragma once

#include "platform/PropertyList.h"
#include "profiles/ProfileList.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

inline constexpr size_t kProfileKeyBytes = 32;

// Names of the fields, padded with NULs.
inline constexpr char cIndexOnDeviceKey[kProfileKeyBytes] = "IndexOnDevice";
inline constexpr char cInMenuKey[kProfileKeyBytes] = "InMenu";
inline constexpr char cProfileClassKey[kProfileKeyBytes] = "ProfileClass";
inline constexpr char cFileNameKey[kProfileKeyBytes] = "FileName";
inline constexpr char cProfileNameKey[kProfileKeyBytes] = "ProfileName";
inline constexpr char cLocationKey[kProfileKeyBytes] = "Location";
inline constexpr char cDriverAvailKey[kProfileKeyBytes] = "DriverAvail"; // neither written nor read
inline constexpr char cPlistVersionKey[kProfileKeyBytes] = "PlistVersion";

inline constexpr char kProfileCountKey[] = "iNum";
// The keys of the class dictionaries in the root, indexed by ProfileClassIndex.
inline constexpr std::array<const char *, 3> kProfileClassKeys = {"RGB", "SIM", "DST"};

// The field dictionaries of one class: borrowed nodes.
struct ProfileFieldDictionaries
{
    bv::PropertyListNode indexOnDevice;
    bv::PropertyListNode inMenu;
    bv::PropertyListNode profileClass;
    bv::PropertyListNode location;
    bv::PropertyListNode fileName;
    bv::PropertyListNode profileName;
};

// Output of CreatePropsDictionary: the class dictionary, owned by the caller, and borrowed nodes of its field
// dictionaries.
struct ProfilePropsDictionary
{
    bv::PropertyList classDictionary;
    ProfileFieldDictionaries fields;
};

// One class dictionary (borrowed) with its key in the root: "RGB", "SIM" or "DST". Both are null for an invalid class
// index.
struct ProfileClassWrapper
{
    const char *key = nullptr;
    bv::PropertyListNode classDictionary;
};

// Stores the number under the key in *out. Leaves *out unchanged when the key is missing or its value is no number.
void ReadDictionaryIntEntry(bv::PropertyListNode dictionary, const char *key, int32_t *out);
// Stores the first 31 bytes of the text under the key in `out`. Leaves `out` unchanged when the key is missing or its
// value is no text.
void ReadDictionaryStringEntry(bv::PropertyListNode dictionary, const char *key, char (&out)[kProfileTextBytes]);

// Builds the dictionary of class `which` (a ProfileClassIndex) with all 500 slots, used or not. A text that is not
// UTF-8 is left out with its key. Characters that XML does not allow are removed from the other texts.
ProfileClassWrapper CreatePropsDictionary(int32_t which, const ProfileList *list, ProfilePropsDictionary *out);

// Copies the class dictionaries of the current user's file; the caller owns the copies. Returns 0, or -1 when the file
// cannot be read or a class is missing. The outputs before the missing class are set even then.
int32_t BVPListMappingGetMainDict_FromPlist(bv::PropertyList *rgb, bv::PropertyList *sim, bv::PropertyList *dst);
// Looks up the field dictionaries of a class dictionary in the order of the struct, then the count, if there is one.
// Returns 0, or -1 at the first missing dictionary; the outputs after it then stay unchanged.
int32_t BVPListMappingGetSubDict(bv::PropertyListNode classDictionary, ProfileFieldDictionaries *fields,
                                 int32_t *count);

namespace bv {

// The contents of the current user's list file as a property list; null when the file is missing, no regular file, or
// no readable property list.
PropertyList readProfileListFile();

// Whether the text is a readable list file: a property list with three class dictionaries that each hold six field
// dictionaries.
bool isCompleteProfileList(std::string_view xml);

// The whole list file as XML text, UTF-8 and well-formed; nothing when it cannot be built.
std::optional<std::string> profileListXml(const ProfileList &rgb, const ProfileList &sim, const ProfileList &dst);

// Makes the keys of one field's slots: the name of the field and four digits. One object serves all slots of a field.
class SlotKey
{
public:
    explicit SlotKey(std::string_view field);
    // The key for a slot from 0 to 9999; valid until the next call.
    const char *at(int slot);

    // The slot of a key of this field: the number in its four digits. Nothing for any other text.
    std::optional<int> slotOf(std::string_view key) const;

private:
    std::array<char, kProfileKeyBytes + 4> m_text{};
    size_t m_digits;
};

} // namespace bv
