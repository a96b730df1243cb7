// SPDX-License-Identifier: GPL-2.0-or-later
// What a text must be to become a list file.
#include "helper/ListCheck.h"

#include "profiles/ProfileListFile.h"

namespace bv {

namespace {

constexpr std::array<const char *, 6> kFieldKeys = {cIndexOnDeviceKey, cInMenuKey,   cProfileClassKey,
                                                    cLocationKey,      cFileNameKey, cProfileNameKey};

// Whether each of the keys stands in a dictionary once, with a dictionary as its value. A key that stands there twice
// would leave open which value a reader takes.
template <size_t Size> bool hasDictionaries(PropertyListNode node, const std::array<const char *, Size> &keys)
{
    for (const char *key : keys)
        if (!node.item(key).isDictionary() || node.repeats(key))
            return false;
    return true;
}

} // namespace

std::optional<std::string> faultOfListText(std::string_view text)
{
    std::string fault;
    const PropertyList list = PropertyList::fromXml(text, PlistEncoding::Utf8, &fault);
    if (!list)
        return "the list is refused: " + fault;
    if (!hasDictionaries(list.root(), kProfileClassKeys))
        return "the list lacks a class, or has one twice";
    for (const char *key : kProfileClassKeys)
        if (!hasDictionaries(list.root().item(key), kFieldKeys))
            return "a class of the list lacks a field, or has one twice";
    return std::nullopt;
}

} // namespace bv
