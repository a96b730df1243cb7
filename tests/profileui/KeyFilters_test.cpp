// SPDX-License-Identifier: GPL-2.0-or-later
// The character filters over the whole of ASCII and the check of texts unit by unit.
#include "profileui/KeyFilters.h"

#include <gtest/gtest.h>

namespace {

QString acceptedAscii(uint32_t filter)
{
    QString accepted;
    for (int32_t character = 0; character < 0x180; ++character) {
        if (FilterEditTextInputKey(character, filter))
            accepted += QChar(character);
    }
    return accepted;
}

QString checked(const QString &text, uint32_t filter)
{
    QString result = text;
    CheckUniCharString(reinterpret_cast<const char16_t *>(text.utf16()), static_cast<uint32_t>(text.size()), filter,
                       &result);
    return result;
}

TEST(KeyFilters, AcceptExactlyTheirCharacters)
{
    QString printable;
    for (char16_t character = 0x20; character <= 0x7E; ++character)
        printable += QChar(character);
    EXPECT_EQ(acceptedAscii(kFilterAscii), printable);
    EXPECT_EQ(acceptedAscii(kFilterFileName),
              QStringLiteral("!#$%&'()-.0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ^_`abcdefghijklmnopqrstuvwxyz{}~"));
    EXPECT_EQ(acceptedAscii(kFilterAlphaNumeric),
              QStringLiteral("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    EXPECT_EQ(acceptedAscii(kFilterNumeric), QStringLiteral("0123456789"));
    for (const uint32_t other : {4U, 5U, UINT32_MAX}) {
        EXPECT_EQ(acceptedAscii(other).size(), 0x180 - 2);
        EXPECT_FALSE(FilterEditTextInputKey('"', other));
        EXPECT_FALSE(FilterEditTextInputKey('+', other));
    }
    // The value of a dead key.
    EXPECT_TRUE(AsciiKeyFilter(-128) && AsciiKeyFilterAppoint(-128));
    EXPECT_FALSE(AlphaNumericKeyFilter(-128));
}

TEST(KeyFilters, ASurrogateIsCombinedWithTheNextUnitAndTheIndexAdvancesByOne)
{
    struct Row
    {
        std::u16string units;
        uint32_t index;
        uint32_t character;
    };
    const Row rows[] = {
        {u"a", 0, 'a'},
        {u"\xD83D\xDE00", 0, 0x1F600},
        // The second unit of the pair by itself, at the end.
        {u"\xD83D\xDE00", 1, 0x10000 + ((0xDE00U << 10) & 0xFFC00)},
        // A lead unit before a letter.
        {u"\xD83D"
         u"a",
         0, 0x10000 + 0xF400 + ('a' & 0x3FF)},
        {u"\xFFFF", 0, 0xFFFF},
    };
    for (const Row &row : rows) {
        uint32_t next = 0;
        EXPECT_EQ(
            UCFindComposedCharAtIndex(row.units.data(), static_cast<uint32_t>(row.units.size()), row.index, &next),
            row.character);
        EXPECT_EQ(next, row.index + 1);
    }
}

TEST(KeyFilters, CheckingATextDeletesUnitByUnit)
{
    EXPECT_EQ(checked(QStringLiteral("a:b c.icc"), kFilterFileName), QStringLiteral("abc.icc"));
    EXPECT_EQ(checked(QString::fromUtf8("::a\xF0\x9F\x98\x80"
                                        "b::"),
                      kFilterFileName),
              QStringLiteral("ab"));
    // Combining and bidirectional marks, and a NUL in the middle.
    EXPECT_EQ(checked(QString::fromUtf16(u"e\x0301\x202Ex\0y", 6), kFilterAscii), QStringLiteral("exy"));
    // Filter 4 checks the pair, then its second unit again. It accepts both.
    EXPECT_EQ(checked(QString::fromUtf8("\"\xF0\x9F\x98\x80+"), 4), QString::fromUtf8("\xF0\x9F\x98\x80"));
    // Only a lone lead unit itself is deleted.
    EXPECT_EQ(checked(QString(QChar(0xD83D)) + u'a', kFilterAscii), QStringLiteral("a"));
    EXPECT_EQ(checked({}, kFilterAscii), QString());
}

TEST(KeyFilters, ThePositionWrapsAt16Bits)
{
    // The unit at index 65,536 is refused, but the one at position 0 is deleted.
    QString text(65537, u'b');
    text[0] = u'a';
    text[65536] = u':';
    const QString result = checked(text, kFilterFileName);
    EXPECT_EQ(result.size(), 65536);
    EXPECT_EQ(result.at(0), u'b');
    EXPECT_EQ(result.back(), u':');
}

} // namespace
