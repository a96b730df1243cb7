// SPDX-License-Identifier: GPL-2.0-or-later
// The data behind the nodes of a property list, for the code that parses and writes lists.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace bv {

struct PlistEntry;

struct PlistValue
{
    enum class Kind : uint8_t { Dictionary, Number, Text, Other };

    Kind kind = Kind::Other;
    std::optional<int32_t> number;
    std::string text;
    std::vector<PlistEntry> entries; // sorted by key; equal keys in the order of the text
};

// One entry of a dictionary. A pair would not do: clang 14 wants the types of a pair complete where it is named.
struct PlistEntry
{
    PlistEntry(std::string entryKey, PlistValue entryValue) : key(std::move(entryKey)), value(std::move(entryValue)) {}

    std::string key;
    PlistValue value;
};

} // namespace bv
