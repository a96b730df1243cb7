// SPDX-License-Identifier: GPL-2.0-or-later
// The encoding table of PPD texts, and decoding through iconv.
#include "controls/PpdEncoding.h"

#include "platform/TextConverter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace bv {

namespace {

constexpr uint32_t kUtf8 = 0x08000100;

// Shift JIS: backslash and tilde are the ASCII characters, as in every PPD. Row 13 has the special characters of code
// page 932. Mac OS Roman: U+2206 and U+F8FF follow the table published by its vendor (ROMAN.TXT).
// clang-format off
constexpr std::array<PpdEncoding, 6> kEncodings{{
    {"ISOLatin1",   5,  0x00000201, "ISO-8859-1", nullptr, {}},
    {"WindowsANSI", 12, 0x00000500, "CP1252",     nullptr, {}},
    {"JIS83-RKSJ",  8,  0x00000A01, "SHIFT_JIS",  "CP932", {{{u'\u00A5', u'\\'},    {u'\u203E', u'~'}}}},
    {"UTF-8",       4,  kUtf8,      "UTF-8",      nullptr, {}},
    {"UTF8",        4,  kUtf8,      "UTF-8",      nullptr, {}},
    {nullptr,       30, 0x00000000, "MACINTOSH",  nullptr, {{{u'\u0394', u'\u2206'}, {u'\uE01E', u'\uF8FF'}}}},
}};
// clang-format on

// Whether two bytes have the form of a two-byte Shift JIS character. The character need not exist.
bool isShiftJisPair(unsigned char first, unsigned char second)
{
    const bool lead = (first >= 0x81 && first <= 0x9F) || (first >= 0xE0 && first <= 0xFC);
    return lead && second >= 0x40 && second <= 0xFC && second != 0x7F;
}

constexpr char kReplacement[] = "\xEF\xBF\xBD"; // U+FFFD

// Called when the main character set cannot convert the beginning of the text. Appends a two-byte character from the
// second set, or U+FFFD. Returns the number of bytes consumed.
size_t appendUnknown(std::string *out, std::string_view text, const PpdEncoding &encoding)
{
    const bool isPair = encoding.pairsName && text.size() >= 2 && isShiftJisPair(uint8_t(text[0]), uint8_t(text[1]));
    const std::string_view unknown = text.substr(0, isPair ? 2 : 1);
    TextConverter pairs("UTF-8", isPair ? encoding.pairsName : encoding.iconvName);
    if (!isPair || !pairs || !pairs.append(out, unknown))
        *out += kReplacement;
    return unknown.size();
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & '\x80') == 0; });
}

} // namespace

const PpdEncoding &ppdEncoding(const char *languageEncoding)
{
    for (const PpdEncoding &row : kEncodings) {
        if (row.languageEncoding && languageEncoding && std::strcmp(row.languageEncoding, languageEncoding) == 0)
            return row;
    }
    return kEncodings.back();
}

QString decodePpdText(const char *text, const PpdEncoding &encoding)
{
    if (!text)
        return {};
    const std::string_view bytes(text);
    // A shortcut: all six encodings agree with ASCII below 0x80, and almost every PPD text is pure ASCII.
    if (isAscii(bytes))
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    if (encoding.cfEncoding == kUtf8)
        return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    TextConverter converter("UTF-8", encoding.iconvName);
    if (!converter)
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    std::string decoded;
    for (std::string_view rest = bytes; !rest.empty();) {
        rest.remove_prefix(converter.appendBeginning(&decoded, rest));
        if (!rest.empty())
            rest.remove_prefix(appendUnknown(&decoded, rest, encoding));
    }
    QString result = QString::fromStdString(decoded);
    for (const PpdReplacement &replacement : encoding.replacements)
        if (replacement.converted)
            result.replace(QChar(replacement.converted), QChar(replacement.meant));
    return result;
}

} // namespace bv
