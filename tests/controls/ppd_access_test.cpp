// SPDX-License-Identifier: GPL-2.0-or-later
// The PPD through libcups: encodings, choice lists, conflict marks, menus, defaults and current values.
#include "controls/PpdEncoding.h"
#include "common/PDECommon.h"
#include "support/PaneFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <map>

using bvtest::ppdOption;
using bvtest::TestPpd;

namespace {

TEST(PpdEncoding, ComparesLanguageEncodingExactly)
{
    struct
    {
        const char *name;
        uint32_t object, cf;
    } const rows[] = {
        {"ISOLatin1", 5, 513},  {"WindowsANSI", 12, 1280}, {"JIS83-RKSJ", 8, 2561}, {"UTF-8", 4, 134217984},
        {"UTF8", 4, 134217984}, {"utf8", 30, 0},           {"MacStandard", 30, 0},  {nullptr, 30, 0},
    };
    ppd_file_t ppd{};
    for (const auto &row : rows) {
        ppd.lang_encoding = const_cast<char *>(row.name);
        EXPECT_EQ(PDECommon::commonGetEncodingFromPPD(&ppd), row.object);
        EXPECT_EQ(PDECommon::commonGetCFStringEncodingFromPPD(&ppd), row.cf);
    }
    EXPECT_EQ(PDECommon::commonGetEncodingFromPPD(nullptr), 30U);
}

TEST(PpdEncoding, DecodesEachEncodingAndReplacesInvalidBytes)
{
    struct
    {
        const char *encoding;
        const char *bytes;
        const char16_t *text;
    } const rows[] = {
        {"ISOLatin1", "Gr\xFC\xDF", u"Gr\u00FC\u00DF"},
        {"WindowsANSI",
         "\x93"
         "a\x94 \x80",
         u"\u201Ca\u201D \u20AC"},
        {"WindowsANSI", "a\x81z", u"a\uFFFDz"},
        {"JIS83-RKSJ", "\x8E\xCA\x90\x5E", u"\u5199\u771F"},
        {"JIS83-RKSJ", "a\x8E", u"a\uFFFD"},
        // ASCII bytes stay ASCII in any encoding.
        {"JIS83-RKSJ", "\\~", u"\\~"},
        {"JIS83-RKSJ", "\\~\x88\x9F", u"\\~\u4E9C"},
        {"JIS83-RKSJ", "\x87\x40@\x81\x60\x85\x40x", u"\u2460@\u301C\uFFFDx"},
        {nullptr, "\xC6\xF0\xBD\xDB", u"\u2206\uF8FF\u03A9\u20AC"},
        {"UTF-8", "Gr\xC3\xBC", u"Gr\u00FC"},
        {nullptr, "Gr\x9F", u"Gr\u00FC"},
        {"none", "\xC7x\xC8", u"\u00ABx\u00BB"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(bv::decodePpdText(row.bytes, bv::ppdEncoding(row.encoding)), QString::fromUtf16(row.text));
    EXPECT_TRUE(bv::decodePpdText(nullptr, bv::ppdEncoding("UTF-8")).isNull());
    const std::string longText(5000, '\x9F');
    EXPECT_EQ(bv::decodePpdText(longText.c_str(), bv::ppdEncoding(nullptr)), QString(5000, QChar(0xFC)));
}

// Two options that exclude each other in one pair of choices, and a third that has no default.
const QByteArray kConflicting = "*UIConstraints: *BVA Two *BVB Two\n*UIConstraints: *BVB Two *BVA Two\n" +
                                ppdOption("BVA", "One Two Three") + ppdOption("BVB", "One Two", "PickOne", "Two") +
                                ppdOption("BVC", "One Two", "PickOne", "Unknown");

std::map<std::string, std::string> marks(ppd_file_t *ppd)
{
    std::map<std::string, std::string> found;
    for (const char *key : {"BVA", "BVB", "BVC"}) {
        const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, key);
        found[key] = choice ? choice->choice : "";
    }
    return found;
}

TEST(PpdAccess, ChoiceEntriesHoldFiveStringsInPpdOrder)
{
    const TestPpd ppd(kConflicting, nullptr);
    std::shared_ptr<const PPDChoiceArray> choices;
    ASSERT_EQ(PDECommon::commonGetPPDArrayForUIOption(ppd.get(), "BVA", &choices), noErr);
    ASSERT_EQ(choices->size(), 3U);
    const PPDChoiceEntry expected{"BVA", "One", "Two", "Two text", "ConflictTrue"};
    EXPECT_EQ((*choices)[1], expected);
    EXPECT_EQ((*choices)[2][4], "ConflictFalse");

    const auto before = choices;
    EXPECT_EQ(PDECommon::commonGetPPDArrayForUIOption(ppd.get(), "BVNone", &choices), kPMKeyNotFound);
    EXPECT_EQ(choices, before) << "an unknown keyword leaves the reference alone";

    PPDChoiceArray list;
    uint16_t count = 7;
    EXPECT_EQ(PDECommon::commonGetUIListFromPPD(ppd.get(), "BVB", &list, &count), noErr);
    EXPECT_EQ(count, 9);
    EXPECT_EQ(PDECommon::commonGetUIListFromPPD(ppd.get(), "BVB", nullptr, &count), noErr);
    EXPECT_EQ(count, 9);
}

TEST(PpdAccess, ConflictTestLeavesTheMarksAsTheyWere)
{
    const TestPpd ppd(kConflicting, nullptr);
    const auto before = marks(ppd.get());
    EXPECT_TRUE(PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVA", "Two"));
    EXPECT_FALSE(PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVA", "Three"));
    EXPECT_FALSE(PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVB", "Two")) << "marked, and nothing conflicts";
    EXPECT_FALSE(PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVNone", "Two"));
    EXPECT_EQ(marks(ppd.get()), before);

    // An option without a marked choice stays so, also after later markings.
    PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVC", "One");
    PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVA", "Two");
    EXPECT_EQ(marks(ppd.get())["BVC"], "");
    ppdMarkOption(ppd.get(), "BVA", "Two");
    EXPECT_TRUE(PDECommon::commonIsPPDChoiceConflicted(ppd.get(), "BVB", "Two"));
}

TEST(PpdMenus, RebuildReplacesItemsOnlyWhenThePpdHasTheOption)
{
    const TestPpd ppd(kConflicting, nullptr);
    QComboBox menu;
    menu.addItem("before");
    PDEControlItem row{&menu, kPDEControlPopUp, "BVNone", nullptr, nullptr, "", 0, nullptr};
    PDECommon::commonReBuildMenuFromPPD(ppd.get(), &row);
    EXPECT_EQ(menu.count(), 1);
    row.ppdKey = "BVA";
    PDECommon::commonReBuildMenuFromPPD(ppd.get(), &row);
    ASSERT_EQ(menu.count(), 3);
    EXPECT_EQ(menu.itemText(1), "Two text");
    EXPECT_EQ(menu.itemData(1).toString(), "Two");
    PDECommon::commonReBuildMenuFromPPD(nullptr, &row);
    EXPECT_EQ(menu.count(), 3);
    ppdFindOption(ppd.get(), "BVA")->choices[1].choice[0] = '\xE9';
    PDECommon::commonReBuildMenuFromPPD(ppd.get(), &row);
    EXPECT_EQ(menu.itemText(1), "Two text");
    EXPECT_FALSE(menu.itemData(1).isValid()) << "a keyword that is no ASCII is no keyword";
}

TEST(PpdMenus, DefaultsAndCurrentValuesByKind)
{
    const QByteArray lines =
        ppdOption("BVA", "One Two", "PickOne", "Two") + ppdOption("BVLost", "One", "PickOne", "No") +
        ppdOption("BVOn", "False True", "Boolean", "True") + ppdOption("BVOdd", "Yes No", "Boolean", "Yes");
    const TestPpd ppd(lines, nullptr);
    QComboBox menu;
    QCheckBox box;
    const auto row = [&](QWidget *control, PDEControlKind kind, const char *key) {
        PDEControlItem item{control, kind, key, nullptr, nullptr, "", 0, nullptr};
        PDECommon::commonGetPPDArrayForUIOption(ppd.get(), key, &item.ppdChoices);
        return item;
    };
    const PDEControlItem popUp = row(&menu, kPDEControlPopUp, "BVA");
    EXPECT_EQ(PDECommon::commonGetDefualtValueFromPPDWithSInt32(&popUp), 1);
    const PDEControlItem lost = row(&menu, kPDEControlPopUp, "BVLost");
    EXPECT_EQ(PDECommon::commonGetDefualtValueFromPPDWithSInt32(&lost), -1);
    const PDEControlItem missing = row(&menu, kPDEControlPopUp, "BVNone");
    EXPECT_EQ(PDECommon::commonGetDefualtValueFromPPDWithSInt32(&missing), 0);
    EXPECT_EQ(PDECommon::commonGetDefualtValueFromPPDWithSInt32(nullptr), 0);

    const PDEControlItem on = row(&box, kPDEControlCheckBox, "BVOn");
    EXPECT_EQ(PDECommon::commonGetDefualtValueFromPPDWithSInt32(&on), 1);
    EXPECT_EQ(PDECommon::commonGetControlValueFromPPDWithSInt32(&on), 0) << "the entry named False stands first";
    EXPECT_EQ(PDECommon::commonGetControlValueFromPPDWithNSString(&on), "False text");
    box.setChecked(true);
    EXPECT_EQ(PDECommon::commonGetControlValueFromPPDWithSInt32(&on), 1);
    const PDEControlItem odd = row(&box, kPDEControlCheckBox, "BVOdd");
    EXPECT_EQ(PDECommon::commonGetControlValueFromPPDWithSInt32(&odd), -1);
    EXPECT_TRUE(PDECommon::commonGetControlValueFromPPDWithNSString(&odd).isNull());
}

} // namespace
