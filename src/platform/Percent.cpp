// SPDX-License-Identifier: GPL-2.0-or-later
// Decodes percent escapes.
#include "platform/Percent.h"

#include <charconv>

namespace bv {

std::optional<std::string> percentDecoded(std::string_view text)
{
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            bytes += text[i];
            continue;
        }
        const std::string_view digits = text.substr(i + 1, 2);
        unsigned value = 0;
        if (digits.size() < 2 || std::from_chars(digits.data(), digits.data() + 2, value, 16).ptr != digits.data() + 2)
            return std::nullopt;
        bytes += static_cast<char>(value);
        i += 2;
    }
    return bytes;
}

} // namespace bv
