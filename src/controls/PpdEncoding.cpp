// The encoding table of PPD texts, and decoding through iconv.
#include "controls/PpdEncoding.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iconv.h>

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

// An open iconv conversion to UTF-8.
class Conversion
{
public:
    explicit Conversion(const char *from) : m_handle(iconv_open("UTF-8", from)) {}
    ~Conversion()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Conversion(const Conversion &) = delete;
    Conversion &operator=(const Conversion &) = delete;
    bool isOpen() const { return m_handle != iconv_t(-1); }

    QString decode(const char *text, size_t length) const
    {
        QString decoded;
        std::array<char, 256> buffer{};
        char *in = const_cast<char *>(text); // iconv's signature; it does not write there
        size_t left = length;
        while (left > 0) {
            char *out = buffer.data();
            size_t room = buffer.size();
            const size_t result = iconv(m_handle, &in, &left, &out, &room);
            decoded += QString::fromUtf8(buffer.data(), qsizetype(buffer.size() - room));
            if (result == size_t(-1) && errno != E2BIG) {
                decoded += QChar::ReplacementCharacter;
                ++in;
                --left;
            }
        }
        return decoded;
    }

private:
    iconv_t m_handle;
};

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
    const Conversion conversion(encoding.iconvName);
    if (!conversion.isOpen())
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    return conversion.decode(bytes.data(), bytes.size());
}

} // namespace bv
