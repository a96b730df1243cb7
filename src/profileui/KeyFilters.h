// The character filters of the text fields, and the check of a whole text against one of them. Positions and lengths
// count UTF-16 units.
#pragma once

#include <QString>
#include <cstdint>

// Filter numbers as a field knows them; every other number stands for WideCharKeyFilter.
enum InputKeyFilter : uint32_t {
    kFilterAscii = 0,
    kFilterFileName = 1,
    kFilterAlphaNumeric = 2,
    kFilterNumeric = 3,
};

// Printable ASCII, 0x20 to 0x7E; -128 as well.
bool AsciiKeyFilter(int32_t character);
// Printable ASCII without the space and " * + , / : ; < = > ? @ [ \ ] |; -128 as well.
bool AsciiKeyFilterAppoint(int32_t character);
// 0 to 9, A to Z, a to z.
bool AlphaNumericKeyFilter(int32_t character);
// 0 to 9.
bool NumericKeyFilter(int32_t character);
// Everything but the double quote and the plus sign.
bool WideCharKeyFilter(int32_t character);
// Whether the filter of that number accepts a code point.
bool FilterEditTextInputKey(int32_t character, uint32_t inputkey);

// The code point at `index` (below `count`), and in *next the index to go on with, always index + 1: the second unit
// of a surrogate pair is looked at again by itself. Any surrogate is combined with the unit behind it, or with 0 where
// there is none.
uint32_t UCFindComposedCharAtIndex(const char16_t *units, uint32_t count, uint32_t index, uint32_t *next);

// Deletes from *text every unit at which the filter refuses the code point of `units`; *text starts as their copy.
// The position in *text is kept in 16 bits, so a text beyond 65,535 units is not followed to its end.
void CheckUniCharString(const char16_t *units, uint32_t count, uint32_t inputkey, QString *text);
