// SPDX-License-Identifier: GPL-2.0-or-later
// The data behind the nodes of a property list, for the code that parses and writes lists.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace bv {

struct PlistValue;
using PlistEntry = std::pair<std::string, PlistValue>;

struct PlistValue
{
    enum class Kind : uint8_t { Dictionary, Number, Text, Other };

    Kind kind = Kind::Other;
    std::optional<int32_t> number;
    std::string text;
    std::vector<PlistEntry> entries; // sorted by key; equal keys in the order of the text
};

} // namespace bv
