// SPDX-License-Identifier: GPL-2.0-or-later
// The text encodings that a PPD can name in LanguageEncoding, and decoding of its texts.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

namespace bv {

// One difference between iconv's table and the encoding's own: iconv yields `converted`, the encoding means `meant`.
struct PpdReplacement
{
    char16_t converted;
    char16_t meant;
};

// One row of the encoding table. iconvName and pairsName are character set names for iconv(3).
struct PpdEncoding
{
    const char *languageEncoding; // value of the PPD's LanguageEncoding; null: any other value, none, or no PPD
    uint32_t objectEncoding;
    uint32_t cfEncoding;
    const char *iconvName;
    const char *pairsName; // character set for two-byte characters missing in iconvName; null: none
    std::array<PpdReplacement, 2> replacements; // `converted` has no other source, so replacing it is safe
};

// The row for a LanguageEncoding value, which is compared exactly. Null and unknown values give the last row, Mac OS
// Roman.
const PpdEncoding &ppdEncoding(const char *languageEncoding);

// Decodes a NUL-terminated PPD text. An unknown byte or pair of bytes becomes U+FFFD. Null gives a null string.
QString decodePpdText(const char *text, const PpdEncoding &encoding);

} // namespace bv
