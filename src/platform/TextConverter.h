// Conversion of texts between character sets through iconv(3). Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <iconv.h>
#include <string>
#include <string_view>

namespace bv {

// One direction, from one character set to another; names as iconv_open(3) takes them.
class TextConverter
{
public:
    TextConverter(const char *to, const char *from);
    TextConverter(const TextConverter &) = delete;
    TextConverter &operator=(const TextConverter &) = delete;
    ~TextConverter();

    // Whether the system knows both character sets. Nothing below may be called otherwise.
    explicit operator bool() const;

    // Appends the conversion of a whole text. False, with nothing appended, when a character has no exact counterpart.
    // An empty text takes an encoding that has states back to its first.
    bool append(std::string *out, std::string_view text);
    // Appends the conversion of as many characters from the beginning on as there is one for; the number of bytes that
    // they took of the text.
    size_t appendBeginning(std::string *out, std::string_view text);

private:
    size_t convert(std::string *out, std::string_view text, bool *exact);

    iconv_t m_handle;
};

} // namespace bv
