// SPDX-License-Identifier: GPL-2.0-or-later
// File URLs of logical paths. Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// The file URL (RFC 8089) of an absolute path: "file://" and the percent-encoded path. "/" and the unreserved
// characters of RFC 3986 (ASCII letters and digits, "-", ".", "_", "~") stay; every other byte becomes "%" and two
// upper-case hexadecimal digits. The path need not be valid UTF-8. The encoding is fixed because both sides of a
// request compare URLs as texts.
std::string fileUrl(std::string_view path);

} // namespace bv
