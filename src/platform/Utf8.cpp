// SPDX-License-Identifier: GPL-2.0-or-later
// UTF-8 checked by the table of well-formed byte sequences in RFC 3629, section 4.
#include "platform/Utf8.h"

#include <cstdint>
#include <cstring>

namespace bv {

namespace {

struct SequenceRow
{
    unsigned char firstLow, firstHigh;   // range of the first byte
    unsigned char secondLow, secondHigh; // range of the second byte; later bytes are 80 to BF
    size_t length;
};

// clang-format off
constexpr SequenceRow kSequences[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
};
// clang-format on

// The number of ASCII bytes at the start, rounded down to whole words.
size_t asciiWords(std::string_view text)
{
    size_t done = 0;
    for (uint64_t word = 0; done + sizeof word <= text.size(); done += sizeof word) {
        std::memcpy(&word, text.data() + done, sizeof word);
        if (word & UINT64_C(0x8080808080808080))
            break;
    }
    return done;
}

} // namespace

size_t utf8CharacterLength(std::string_view text)
{
    if (text.empty())
        return 0;
    const auto byte = [&](size_t at) { return static_cast<unsigned char>(text[at]); };
    if (byte(0) < 0x80)
        return 1;
    for (const SequenceRow &row : kSequences) {
        if (byte(0) < row.firstLow || byte(0) > row.firstHigh)
            continue;
        if (text.size() < row.length || byte(1) < row.secondLow || byte(1) > row.secondHigh)
            return 0;
        for (size_t at = 2; at < row.length; ++at)
            if ((byte(at) & 0xC0) != 0x80)
                return 0;
        return row.length;
    }
    return 0;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        text.remove_prefix(asciiWords(text));
        if (text.empty())
            break;
        const size_t length = utf8CharacterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

} // namespace bv
