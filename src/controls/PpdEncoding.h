// Encodings of a PPD's texts by its LanguageEncoding, and decoding with them.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

namespace bv {

// A character of iconv's table, and the one that the encoding's own table holds in its place.
struct PpdReplacement
{
    char16_t converted;
    char16_t meant;
};

// One row of the encoding table. The names are those of character sets for iconv(3).
struct PpdEncoding
{
    const char *languageEncoding; // value of the PPD's LanguageEncoding; null: anything else, absent, or no PPD
    uint32_t objectEncoding;
    uint32_t cfEncoding;
    const char *iconvName;
    const char *pairsName; // character set of two-byte characters that the first one lacks; null: none
    std::array<PpdReplacement, 2> replacements; // no byte but the one meant is converted to these characters
};

// The row of a LanguageEncoding value (compared exactly; null: the last row, Mac OS Roman).
const PpdEncoding &ppdEncoding(const char *languageEncoding);

// Decodes a NUL-terminated PPD text. A byte or pair of bytes that the encoding does not know becomes U+FFFD; null gives
// a null string.
QString decodePpdText(const char *text, const PpdEncoding &encoding);

} // namespace bv
