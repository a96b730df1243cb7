// SPDX-License-Identifier: GPL-2.0-or-later
// The printer's rule for profile file names.
#include "discovery/FileNameRule.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FileNameRule, JudgesStemAndExtension)
{
    const std::string stem27(27, 's');
    const std::pair<std::string, bool> cases[] = {
        {"a.b", true},
        {"name.", true},
        {"a.b.c", true},
        {"a.b.cd", false},
        {"noextension", true},
        {stem27 + "s", false},
        {stem27 + ".icc", true},
        {stem27 + "s.icc", false},
        {"x.icc4", false},
        {".icc", false},
        {"", false},
        {"a b.icc", false},
        {"a....", true},
        {"a.....", false},
        {std::string("a\0b", 3), false},
    };
    for (const auto &[name, accepted] : cases)
        EXPECT_EQ(bJudgement8point3Format(name), accepted) << name;
    EXPECT_FALSE(bJudgement8point3Format({})) << "a missing text";
}

TEST(FileNameRule, AcceptsExactlyTheseCharacters)
{
    const std::string accepted = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789!#$%&'()-.^_{}~`";
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        EXPECT_EQ(FileNameFilter(character), accepted.find(character) != std::string::npos) << code;
    }
}

} // namespace
