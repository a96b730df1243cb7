// SPDX-License-Identifier: GPL-2.0-or-later
// UTF-8 basics: validity of texts and length of characters. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string_view>

namespace bv {

// The length in bytes (1 to 4) of the first character. 0 for an empty text, and when the text does not begin with a
// well-formed character of RFC 3629 (no overlong forms, no surrogates, nothing above U+10FFFF).
size_t utf8CharacterLength(std::string_view text);

// Whether the whole text is well-formed UTF-8. True for an empty text.
bool isUtf8(std::string_view text);

} // namespace bv
