// File URLs of logical paths. Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// The absolute file URL (RFC 8089) of an absolute path: "file://", then the path with each byte that is neither "/" nor
// an unreserved character of RFC 3986 (ASCII letters and digits, "-", ".", "_", "~") as "%" and two upper-case
// hexadecimal digits. So blanks, "%", "@" and every byte of a non-ASCII character are encoded, valid UTF-8 or not.
// The same path gives the same URL byte for byte: both sides of a request compare URLs as texts.
std::string fileUrl(std::string_view path);

} // namespace bv
