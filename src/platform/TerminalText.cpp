// SPDX-License-Identifier: GPL-2.0-or-later
// Writes control characters out.
#include "platform/TerminalText.h"

#include <cstdio>

namespace bv {

namespace {

// Copies the text and writes out what `isRaw` does not let through. The second set of control characters, U+0080 to
// U+009F, is the byte 0xC2 and the character's own number in UTF-8.
template <typename IsRaw> std::string writtenOut(std::string_view text, const char *lowForm, IsRaw isRaw)
{
    std::string out;
    out.reserve(text.size());
    const auto escape = [&out](const char *form, unsigned code) {
        char digits[8];
        std::snprintf(digits, sizeof digits, form, code);
        out += digits;
    };
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        if (byte == 0xc2 && next >= 0x80 && next < 0xa0) {
            escape("\\u%04x", next);
            ++i;
        } else if ((byte < 0x20 || byte == 0x7f) && !isRaw(byte)) {
            escape(lowForm, byte);
        } else {
            out += text[i];
        }
    }
    return out;
}

} // namespace

std::string printableText(std::string_view text)
{
    return writtenOut(text, "\\x%02x", [](unsigned char byte) { return byte == '\n' || byte == '\t'; });
}

std::string printableJson(std::string_view json)
{
    return writtenOut(json, "\\u%04x", [](unsigned char byte) { return byte == '\n'; });
}

} // namespace bv
