// The list file: its keys, its dictionaries, and the conversion between them and lists in memory. Free of Qt and
// libcups. The file is an XML property list: root, three class dictionaries, in each six field dictionaries of 500
// slots ("InMenu0000" to "InMenu0499") and the count.
#pragma once

#include "platform/PropertyList.h"
#include "profiles/ProfileList.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

inline constexpr size_t kProfileKeyBytes = 32;

// Key texts, NUL-padded.
inline constexpr char cIndexOnDeviceKey[kProfileKeyBytes] = "IndexOnDevice";
inline constexpr char cInMenuKey[kProfileKeyBytes] = "InMenu";
inline constexpr char cProfileClassKey[kProfileKeyBytes] = "ProfileClass";
inline constexpr char cFileNameKey[kProfileKeyBytes] = "FileName";
inline constexpr char cProfileNameKey[kProfileKeyBytes] = "ProfileName";
inline constexpr char cLocationKey[kProfileKeyBytes] = "Location";
inline constexpr char cDriverAvailKey[kProfileKeyBytes] = "DriverAvail"; // neither written nor read
inline constexpr char cPlistVersionKey[kProfileKeyBytes] = "PlistVersion";

inline constexpr char kProfileCountKey[] = "iNum";
// The class dictionaries' root keys, by ProfileClassIndex.
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

// What CreatePropsDictionary hands out: the class dictionary, owned by the caller, and its field dictionaries in it.
struct ProfilePropsDictionary
{
    bv::PropertyList classDictionary;
    ProfileFieldDictionaries fields;
};

// The wrapper of one class dictionary: its root key ("RGB", "SIM", "DST"; null for any other class index: the wrapper
// is empty) and the dictionary, borrowed, since a node has one owner only.
struct ProfileClassWrapper
{
    const char *key = nullptr;
    bv::PropertyListNode classDictionary;
};

// Stores the number under the key text as 32 bits; leaves the output untouched when the key is not there or its value
// is no number.
void ReadDictionaryIntEntry(bv::PropertyListNode dictionary, const char *key, int32_t *out);
// Fills the field with the first 31 bytes of the text under the key; leaves it untouched when the key is not there or
// its value is no text.
void ReadDictionaryStringEntry(bv::PropertyListNode dictionary, const char *key, char (&out)[kProfileTextBytes]);

// Builds the dictionary of one class from a list: all 500 slots, used or not. A text that is not UTF-8 leaves out its
// key for that slot; control characters that XML cannot carry are dropped from the others.
ProfileClassWrapper CreatePropsDictionary(int32_t which, const ProfileList *list, ProfilePropsDictionary *out);

// Copies of the class dictionaries of the current user's file, owned by the caller. 0, or -1 when the file cannot be
// read or a class is missing: the classes before the missing one are handed out all the same.
int32_t BVPListMappingGetMainDict_FromPlist(bv::PropertyList *rgb, bv::PropertyList *sim, bv::PropertyList *dst);
// The field dictionaries of a class dictionary, looked up in the order in which the struct names them; -1 at the first
// one missing (those behind it stay as they were). Then the count, if there is one; 0.
int32_t BVPListMappingGetSubDict(bv::PropertyListNode classDictionary, ProfileFieldDictionaries *fields,
                                 int32_t *count);

namespace bv {

// The contents of the current user's list file as a property list; null when it is missing, no regular file or not
// readable as one.
PropertyList readProfileListFile();

// Whether a text is a list file that can be read: a property list whose root holds the three class dictionaries, each
// with its six field dictionaries.
bool isCompleteProfileList(std::string_view xml);

// The whole list file as XML text, UTF-8 and well-formed; nothing when it cannot be made.
std::optional<std::string> profileListXml(const ProfileList &rgb, const ProfileList &sim, const ProfileList &dst);

// The key of one field's slot: the key text and four digits. Made once a field, then moved from slot to slot.
class SlotKey
{
public:
    explicit SlotKey(std::string_view field);
    // The key for a slot from 0 to 9999; valid until the next call.
    const char *at(int slot);

private:
    std::array<char, kProfileKeyBytes + 4> m_text{};
    size_t m_digits;
};

} // namespace bv
