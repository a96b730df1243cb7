// SPDX-License-Identifier: GPL-2.0-or-later
// The data behind the nodes of a property list, for the code that parses and writes lists.
#pragma once

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bv {

struct PlistEntry;

// Keys and texts lie in the texts of the tree that the value belongs to.
struct PlistValue
{
    enum class Kind : uint8_t { Dictionary, Number, Text, Other };

    Kind kind = Kind::Other;
    std::optional<int32_t> number;
    std::string_view text;
    std::vector<PlistEntry> entries; // sorted by key; equal keys in the order of the text
};

// One entry of a dictionary. A pair would not do: clang 14 wants the types of a pair complete where it is named.
struct PlistEntry
{
    PlistEntry(std::string_view entryKey, PlistValue entryValue) : key(entryKey), value(std::move(entryValue)) {}

    std::string_view key;
    PlistValue value;
};

// A property list with all its texts: a full list file has 9,000 keys, which are too many to be kept one by one.
struct PlistTree
{
    PlistValue root;
    std::list<std::string> texts; // never moved in memory while the tree exists
};

} // namespace bv
