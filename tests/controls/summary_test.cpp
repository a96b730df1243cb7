// SPDX-License-Identifier: GPL-2.0-or-later
// Summary items of a table and single items.
#include "platform/Bundle.h"
#include "common/PDECommon.h"
#include "support/PaneFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace {

TEST(Summary, NeedsTheBundleThenListsRowsWithAName)
{
    QComboBox menu;
    menu.addItems({"One", "Two"});
    menu.setCurrentIndex(1);
    QCheckBox oddBox;
    QLabel label;
    PDEControlItem table[] = {
        {&menu, kPDEControlPopUp, "K", nullptr, "Same", "", 0, nullptr},
        {&label, kPDEControlText, "", "Title", nullptr, "", 0, nullptr},
        {&oddBox, kPDEControlCheckBox, "O", nullptr, "Odd", "", 0, nullptr}, // no True or False in the PPD
        {&menu, kPDEControlPopUp, "K", nullptr, "\xC3\xA9", "", 0, nullptr}, // not ASCII: repeats the previous name
        endControlItem(),
    };
    bv::PrintDictionary dictionary;
    bv::PrintArray order;
    if (!pluginBundle()) { // the bundle can be set only once in a process
        EXPECT_EQ(PDECommon::commonGetSummaryText(table, &dictionary, &order), noErr);
        EXPECT_TRUE(order.empty()) << "without the plug-in's bundle nothing is added";
    }

    setPluginBundle({QStringLiteral("/first"), {}});
    setPluginBundle({QStringLiteral("/second"), {}});
    EXPECT_EQ(pluginBundle()->path(), "/first") << "the first bundle stays";

    EXPECT_EQ(PDECommon::commonGetSummaryText(table, &dictionary, &order), paramErr);
    ASSERT_EQ(order.size(), 2U);
    EXPECT_EQ(*order[0].string(), "Same");
    EXPECT_EQ(*order[1].string(), "Odd");
    EXPECT_EQ(*dictionary.value("Same").string(), "Two");
    EXPECT_EQ(*dictionary.value("Odd").string(), "Two");
    EXPECT_EQ(PDECommon::commonGetSummaryText(&table[3], &dictionary, &order), paramErr) << "and no row before it";
    EXPECT_EQ(order.size(), 2U);

    EXPECT_EQ(PDECommon::commonGetSummaryTextQuickColor("Same", "later", &dictionary, &order), noErr);
    EXPECT_EQ(*dictionary.value("Same").string(), "later");
    EXPECT_EQ(order.size(), 3U);
    for (const char *noName : {static_cast<const char *>(nullptr), "caf\xE9"})
        EXPECT_EQ(PDECommon::commonGetSummaryTextQuickColor(noName, "x", &dictionary, &order), paramErr);
    EXPECT_EQ(order.size(), 3U);
}

TEST(Texts, AreEnglishWhereTheLanguageHasNoTableAndKeysWithoutALanguage)
{
    const std::pair<const char *, const char *> rows[] = {
        {"en_GB", "Economy Print"}, {"nl_NL", "Economy Print"}, {"", "EconoMode"}};
    for (const auto &[language, words] : rows)
        EXPECT_EQ(bv::Bundle({{}, language}).localizedString("EconoMode"), words) << language;
    EXPECT_EQ(bv::Bundle({{}, "en"}).localizedString("no such key"), "no such key");
}

} // namespace
