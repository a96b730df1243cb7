// SPDX-License-Identifier: GPL-2.0-or-later
// The character filters and the walk over a text's UTF-16 units.
#include "profileui/KeyFilters.h"

#include <string_view>

namespace {

// A value that dead keys of some keyboards deliver. The two ASCII filters accept it.
constexpr int32_t kDeadKey = -128;

// Characters that a printer's file system rejects in file names, besides the space.
constexpr std::string_view kNotInFileNames = "\"*+,/:;<=>?@[\\]|";

bool within(int32_t character, int32_t first, int32_t last)
{
    return character >= first && character <= last;
}

} // namespace

bool AsciiKeyFilter(int32_t character)
{
    return character == kDeadKey || within(character, 0x20, 0x7E);
}

bool AsciiKeyFilterAppoint(int32_t character)
{
    if (character == kDeadKey)
        return true;
    return within(character, 0x21, 0x7E) &&
           kNotInFileNames.find(static_cast<char>(character)) == std::string_view::npos;
}

bool AlphaNumericKeyFilter(int32_t character)
{
    return NumericKeyFilter(character) || within(character, 'A', 'Z') || within(character, 'a', 'z');
}

bool NumericKeyFilter(int32_t character)
{
    return within(character, '0', '9');
}

bool WideCharKeyFilter(int32_t character)
{
    return character != '"' && character != '+';
}

bool FilterEditTextInputKey(int32_t character, uint32_t inputkey)
{
    switch (inputkey) {
    case kFilterAscii:
        return AsciiKeyFilter(character);
    case kFilterFileName:
        return AsciiKeyFilterAppoint(character);
    case kFilterAlphaNumeric:
        return AlphaNumericKeyFilter(character);
    case kFilterNumeric:
        return NumericKeyFilter(character);
    default:
        return WideCharKeyFilter(character);
    }
}

uint32_t UCFindComposedCharAtIndex(const char16_t *units, uint32_t count, uint32_t index, uint32_t *next)
{
    // Intended: only one unit further, also after a pair.
    *next = index + 1;
    const uint32_t unit = units[index];
    if (unit < 0xD800 || unit > 0xDFFF)
        return unit;
    const uint32_t following = index + 1 < count ? units[index + 1] : 0;
    return ((unit << 10) & 0xFFC00) + (following & 0x3FF) + 0x10000;
}

void CheckUniCharString(const char16_t *units, uint32_t count, uint32_t inputkey, QString *text)
{
    uint16_t position = 0;
    for (uint32_t index = 0, next = 0; index < count; index = next, ++position) {
        const uint32_t character = UCFindComposedCharAtIndex(units, count, index, &next);
        if (FilterEditTextInputKey(static_cast<int32_t>(character), inputkey))
            continue;
        text->remove(position, 1);
        --position;
    }
}
