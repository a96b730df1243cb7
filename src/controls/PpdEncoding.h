// Encodings of a PPD's texts by its LanguageEncoding, and decoding with them.
#pragma once

#include <QString>
#include <cstdint>

namespace bv {

// One row of the encoding table; `iconvName` is the character set's name for iconv(3).
struct PpdEncoding
{
    const char *languageEncoding; // value of the PPD's LanguageEncoding; null: anything else, absent, or no PPD
    uint32_t objectEncoding;
    uint32_t cfEncoding;
    const char *iconvName;
};

// The row of a LanguageEncoding value (compared exactly; null: the last row, Mac OS Roman).
const PpdEncoding &ppdEncoding(const char *languageEncoding);

// Decodes a NUL-terminated PPD text. A byte that the encoding does not know becomes U+FFFD; null gives a null string.
QString decodePpdText(const char *text, const PpdEncoding &encoding);

} // namespace bv
