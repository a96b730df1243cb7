// UTF-8 basics: is a text valid, and where do its characters end. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string_view>

namespace bv {

// The length in bytes (1 to 4) of the well-formed character that the text begins with, after RFC 3629: no overlong
// forms, no surrogates, nothing above U+10FFFF. 0 when there is none, also for an empty text.
size_t utf8CharacterLength(std::string_view text);

// Whether the whole text is well-formed UTF-8. An empty text is.
bool isUtf8(std::string_view text);

} // namespace bv
