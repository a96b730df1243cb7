// SPDX-License-Identifier: GPL-2.0-or-later
// Conversion of texts between character sets through iconv(3). Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <iconv.h>
#include <string>
#include <string_view>

namespace bv {

// Converts in one direction. The names of the character sets are those of iconv_open(3).
class TextConverter
{
public:
    TextConverter(const char *to, const char *from);
    TextConverter(const TextConverter &) = delete;
    TextConverter &operator=(const TextConverter &) = delete;
    ~TextConverter();

    // Whether the system knows both character sets. If not, the functions below must not be called.
    explicit operator bool() const;

    // Appends the converted text. False, with nothing appended, when a character has no exact counterpart. An empty
    // text resets the shift state of an encoding that has one.
    bool append(std::string *out, std::string_view text);
    // Converts from the beginning up to the first character without a counterpart and appends the result. Returns the
    // number of bytes of `text` that were converted.
    size_t appendBeginning(std::string *out, std::string_view text);

private:
    size_t convert(std::string *out, std::string_view text, bool *exact);

    iconv_t m_handle;
};

} // namespace bv
