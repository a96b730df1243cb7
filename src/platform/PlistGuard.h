// What a property-list text must fulfil before the parser sees it: the parser is lenient about the end of a text, dies
// of deep nesting and of NUL bytes, and takes many times the memory of its input. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string_view>

namespace bv {

inline constexpr size_t kPlistMaximumBytes = size_t{4} * 1024 * 1024;
inline constexpr int kPlistMaximumDepth = 32;
// Bounds the depth whatever comments, quotes or CDATA sections make of the tags that the scan sees.
inline constexpr int kPlistMaximumContainers = 4096;

// These two keep the time linear: the parser moves the rest of a text at every entity in it, and its dictionaries slow
// down with many keys that are made to meet. A full list file has some 9,000 keys and texts of 32 bytes.
inline constexpr size_t kPlistMaximumEscapedText = 4096;
inline constexpr int kPlistMaximumKeys = 12000;

// Why a text must not be parsed, as a plain sentence; null when it may be. Refused are: more than kPlistMaximumBytes,
// binary lists, NUL bytes, anything but blanks behind the first "</plist>" (so also a text cut short before it),
// dictionaries and arrays nested deeper than kPlistMaximumDepth, more than kPlistMaximumContainers of them, more than
// kPlistMaximumKeys keys, and a text between two tags that holds entities and is longer than kPlistMaximumEscapedText.
const char *plistRefusal(std::string_view text);

} // namespace bv
