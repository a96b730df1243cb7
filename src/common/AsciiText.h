// SPDX-License-Identifier: GPL-2.0-or-later
// Keys and names of control tables and PPD choices as texts: they are ASCII by contract, and anything else gives none.
#pragma once

#include <QString>
#include <algorithm>
#include <optional>
#include <string_view>

// The text of a NUL-terminated ASCII string; nothing for null and where a byte is no ASCII.
inline std::optional<QString> asciiText(const char *text)
{
    const std::string_view bytes(text ? text : "");
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & '\x80') == 0; });
    if (!text || !ascii)
        return std::nullopt;
    return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
}
