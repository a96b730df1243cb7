// SPDX-License-Identifier: GPL-2.0-or-later
// Encoding of the paths of profiles on the printer, as a ticket stores them. Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// Encodes each byte as two characters: "0" plus its high four bits, then "0" plus its low four bits.
std::string encodeDevicePath(std::string_view path);
// Decodes an encoded path. Malformed text is not refused: an odd last character is paired with a NUL. To check a text,
// encode the result and compare.
std::string decodeDevicePath(std::string_view text);

} // namespace bv
