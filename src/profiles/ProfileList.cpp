// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and fills the 32-byte text fields of a profile record.
#include "profiles/ProfileList.h"

#include <algorithm>
#include <cstring>

namespace bv {

std::string_view fieldText(const char (&field)[kProfileTextBytes])
{
    return {field, strnlen(field, kProfileTextBytes)};
}

void setFieldText(char (&field)[kProfileTextBytes], std::string_view text)
{
    const size_t length = std::min(text.size(), kProfileTextBytes - 1);
    std::memcpy(field, text.data(), length);
    std::memset(field + length, 0, kProfileTextBytes - length);
}

} // namespace bv
