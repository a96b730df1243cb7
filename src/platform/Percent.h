// Percent escapes (RFC 3986, section 2.1). Free of Qt and libcups.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// The bytes that a text with percent escapes stands for, a NUL and what is no UTF-8 too; nothing when a "%" is not
// followed by two hexadecimal digits.
std::optional<std::string> percentDecoded(std::string_view text);

} // namespace bv
