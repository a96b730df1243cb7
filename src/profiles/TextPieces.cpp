// SPDX-License-Identifier: GPL-2.0-or-later
// Cuts UTF-8 text by its length in UTF-16.
#include "profiles/TextPieces.h"

#include "platform/Utf8.h"

#include <algorithm>

std::vector<std::string> splitCharEvery(std::string_view text, size_t units)
{
    std::vector<std::string> pieces;
    size_t start = 0;
    size_t taken = 0; // UTF-16 code units since `start`
    for (size_t at = 0; at < text.size();) {
        const size_t bytes = std::max<size_t>(1, bv::utf8CharacterLength(text.substr(at)));
        const size_t width = bytes == 4 ? 2 : 1;
        if (taken + width > units && at > start) {
            pieces.emplace_back(text.substr(start, at - start));
            start = at;
            taken = 0;
        }
        taken += width;
        at += bytes;
    }
    if (start < text.size())
        pieces.emplace_back(text.substr(start));
    return pieces;
}
