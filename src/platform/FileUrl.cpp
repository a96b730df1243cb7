// SPDX-License-Identifier: GPL-2.0-or-later
// Percent-encoding of file paths.
#include "platform/FileUrl.h"

namespace bv {

namespace {

constexpr std::string_view kKept = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

} // namespace

std::string fileUrl(std::string_view path)
{
    std::string url = "file://";
    for (const char character : path) {
        if (kKept.find(character) != std::string_view::npos) {
            url += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        url += {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
    }
    return url;
}

} // namespace bv
