// The encoding table of PPD texts, and decoding through iconv.
#include "controls/PpdEncoding.h"

#include "platform/TextConverter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace bv {

namespace {

// clang-format off
constexpr std::array<PpdEncoding, 6> kEncodings{{
    {"ISOLatin1",   5, 0x00000201, "ISO-8859-1"},
    {"WindowsANSI", 12, 0x00000500, "CP1252"},
    {"JIS83-RKSJ",  8, 0x00000A01, "SHIFT_JIS"},
    {"UTF-8",       4, 0x08000100, "UTF-8"},
    {"UTF8",        4, 0x08000100, "UTF-8"},
    {nullptr,      30, 0x00000000, "MACINTOSH"},
}};
// clang-format on

constexpr char kReplacement[] = "\xEF\xBF\xBD"; // U+FFFD

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
    // All six encodings agree on ASCII, and almost every text of a PPD is nothing else.
    if (isAscii(bytes))
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    if (encoding.cfEncoding == 0x08000100)
        return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    TextConverter converter("UTF-8", encoding.iconvName);
    if (!converter)
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    std::string decoded;
    for (std::string_view rest = bytes; !rest.empty();) {
        rest.remove_prefix(converter.appendBeginning(&decoded, rest));
        if (rest.empty())
            break;
        decoded += kReplacement;
        rest.remove_prefix(1);
    }
    return QString::fromStdString(decoded);
}

} // namespace bv
