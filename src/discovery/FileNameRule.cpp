// SPDX-License-Identifier: GPL-2.0-or-later
// The printer's rule for profile file names.
#include "discovery/FileNameRule.h"

#include <algorithm>

namespace {

constexpr std::string_view kPunctuation = "!#$%&'()-.^_{}~`";
constexpr size_t kLongestStem = 27;
constexpr size_t kLongestExtension = 3;

} // namespace

bool bJudgement8point3Format(std::string_view text)
{
    if (text.empty())
        return false;
    const size_t dot = text.find('.');
    const size_t stem = dot == text.npos ? text.size() : dot;
    // Despite the function's name, the stem may have up to 27 characters.
    if (stem < 1 || stem > kLongestStem)
        return false;
    // Everything after the first dot counts as the extension: that of "a.b.c" has three characters.
    if (dot != text.npos && text.size() - dot - 1 > kLongestExtension)
        return false;
    return std::all_of(text.begin(), text.end(), FileNameFilter);
}

bool FileNameFilter(char character)
{
    // Not isalnum(3), because the rule must not depend on the locale.
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || kPunctuation.find(character) != kPunctuation.npos;
}
