// SPDX-License-Identifier: GPL-2.0-or-later
// Encodes and decodes device paths.
#include "profiles/DevicePath.h"

namespace bv {

std::string encodeDevicePath(std::string_view path)
{
    std::string text;
    text.reserve(path.size() * 2);
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        text.push_back(char('0' + (byte >> 4)));
        text.push_back(char('0' + (byte & 0x0F)));
    }
    return text;
}

std::string decodeDevicePath(std::string_view text)
{
    std::string path;
    path.reserve((text.size() + 1) / 2);
    for (size_t i = 0; i < text.size(); i += 2) {
        const auto first = static_cast<unsigned char>(text[i]);
        const auto second = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        path.push_back(char((first * 16 & 0xFF) + second - '0'));
    }
    return path;
}

} // namespace bv
