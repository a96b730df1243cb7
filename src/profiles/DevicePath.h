// How a ticket carries the paths of profiles on the printer. Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// A path as a ticket carries it: each byte as two characters, "0" plus its high and its low four bits.
std::string encodeDevicePath(std::string_view path);
// The bytes that an encoded text stands for; an odd last character is paired with a NUL.
std::string decodeDevicePath(std::string_view text);

} // namespace bv
