// SPDX-License-Identifier: GPL-2.0-or-later
// The character filters of the text fields, and the check of a whole text with one of them. Positions and lengths are
// in UTF-16 units.
#pragma once

#include <QString>
#include <cstdint>

// The numbers of the filters. Every other number stands for WideCharKeyFilter.
enum InputKeyFilter : uint32_t {
    kFilterAscii = 0,
    kFilterFileName = 1,
    kFilterAlphaNumeric = 2,
    kFilterNumeric = 3,
};

// Printable ASCII, 0x20 to 0x7E, and -128.
bool AsciiKeyFilter(int32_t character);
// Printable ASCII and -128, but not the space and " * + , / : ; < = > ? @ [ \ ] |.
bool AsciiKeyFilterAppoint(int32_t character);
// 0 to 9, A to Z, a to z.
bool AlphaNumericKeyFilter(int32_t character);
// 0 to 9.
bool NumericKeyFilter(int32_t character);
// Everything but the double quote and the plus sign.
bool WideCharKeyFilter(int32_t character);
// Whether the filter with that number accepts a code point.
bool FilterEditTextInputKey(int32_t character, uint32_t inputkey);

// Returns the code point at `index`, which must be below `count`. A surrogate is combined with the unit after it, or
// with 0 at the end. *next is always index + 1, also after a pair, so the pair's second unit is checked again by
// itself. This is intended: CheckUniCharString relies on it.
uint32_t UCFindComposedCharAtIndex(const char16_t *units, uint32_t count, uint32_t index, uint32_t *next);

// Deletes every unit from *text whose code point in `units` the filter refuses. *text must start as a copy of `units`.
// The position in *text is a 16-bit number and wraps, so texts beyond 65,535 units are not checked correctly.
void CheckUniCharString(const char16_t *units, uint32_t count, uint32_t inputkey, QString *text);
