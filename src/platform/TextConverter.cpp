// SPDX-License-Identifier: GPL-2.0-or-later
// The loop around iconv(3).
#include "platform/TextConverter.h"

namespace bv {

namespace {

// What iconv_open(3) returns on failure.
const auto kNoHandle = reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)

} // namespace

TextConverter::TextConverter(const char *to, const char *from) : m_handle(iconv_open(to, from)) {}

TextConverter::~TextConverter()
{
    if (*this)
        iconv_close(m_handle);
}

TextConverter::operator bool() const
{
    return m_handle != kNoHandle;
}

size_t TextConverter::convert(std::string *out, std::string_view text, bool *exact)
{
    // Room for four bytes of output per byte of input, and for byte-order marks or shift sequences.
    std::string buffer(text.size() * 4 + 16, '\0');
    char *from = const_cast<char *>(text.data()); // iconv's signature; it does not write there
    char *to = buffer.data();
    size_t left = text.size();
    size_t room = buffer.size();
    // A result above 0 means that iconv replaced characters with similar ones.
    *exact = iconv(m_handle, text.empty() ? nullptr : &from, &left, &to, &room) == 0;
    out->append(buffer.data(), buffer.size() - room);
    return text.size() - left;
}

bool TextConverter::append(std::string *out, std::string_view text)
{
    const size_t before = out->size();
    bool exact = false;
    convert(out, text, &exact);
    if (!exact)
        out->resize(before);
    return exact;
}

size_t TextConverter::appendBeginning(std::string *out, std::string_view text)
{
    bool exact = false;
    return text.empty() ? 0 : convert(out, text, &exact);
}

} // namespace bv
