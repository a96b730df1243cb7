// SPDX-License-Identifier: GPL-2.0-or-later
// The text file with the profiles, and mistakes in it.
#include "simulator/ProfileFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using sim::parseProfiles;
using testing::IsEmpty;

TEST(ProfileFile, ReadsRowsGapsAndMissingCells)
{
    const sim::ProfileFile file =
        parseProfiles("# a comment\n"
                      "\n"
                      "row 1\n"
                      "1 disk A.ICC \"Name with \\\"quotes\\\" \\\\ \\x00\\xff\" 1 1 # behind\n"
                      "gap\n"
                      "- card - - -3 -\r\n"
                      "row 400\n"
                      "  7\t9 \"\" \"-\" 2147483647 0");
    ASSERT_EQ(file.error, "");
    ASSERT_EQ(file.rows.size(), 3U);
    EXPECT_EQ(file.rows[0].number, 1U);
    EXPECT_EQ(file.rows[0].location, 4);
    EXPECT_EQ(file.rows[0].profileName, std::string("Name with \"quotes\" \\ \0\xff", 23));
    EXPECT_EQ(file.rows[1].number, 3U);
    EXPECT_EQ(file.rows[1].indexOnDevice, std::nullopt);
    EXPECT_EQ(file.rows[1].location, 5);
    EXPECT_EQ(file.rows[1].fileName, std::nullopt);
    EXPECT_EQ(file.rows[1].profileClass, -3);
    EXPECT_EQ(file.rows[2].number, 400U);
    EXPECT_EQ(file.rows[2].location, 9);
    EXPECT_EQ(file.rows[2].fileName, "");
    EXPECT_EQ(file.rows[2].profileName, "-") << "in quotes it is a text";
    EXPECT_THAT(parseProfiles("").rows, IsEmpty());
}

TEST(ProfileFile, SaysWhichLineIsWrong)
{
    const std::pair<const char *, const char *> cases[] = {
        {"1 disk A B 1", "line 1: a row has six fields"},
        {"#\n\nx disk A B 1 1", "line 3: the index is no number"},
        {"1 tape A B 1 1", "line 1: the location is none of disk, card, a number"},
        {"1 disk A B 1 99999999999", "line 1: the availability is no number"},
        {"1 disk A \"open 1 1", "line 1: a quoted text is broken"},
        {"gap 2", "line 1: \"gap\" stands alone"},
        {"row 0", "line 1: row numbers only go up"},
        {"row -1", "line 1: \"row\" wants one number"},
    };
    for (const auto &[text, error] : cases) {
        const sim::ProfileFile file = parseProfiles(text);
        EXPECT_THAT(file.error, testing::StartsWith(error)) << text;
        EXPECT_THAT(file.rows, IsEmpty()) << text;
    }
    EXPECT_EQ(sim::readProfiles("/nowhere/list").error, "it cannot be read");
}

} // namespace
