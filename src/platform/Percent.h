// SPDX-License-Identifier: GPL-2.0-or-later
// Percent escapes (RFC 3986, section 2.1). Free of Qt and libcups.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace bv {

// Decodes percent escapes. The result may hold NULs and need not be UTF-8. Nothing when a "%" is not followed by two
// hexadecimal digits.
std::optional<std::string> percentDecoded(std::string_view text);

} // namespace bv
