// SPDX-License-Identifier: GPL-2.0-or-later
// Texts that may and may not become a list file.
#include "helper/HelperFixture.h"
#include "helper/ListCheck.h"

#include <string>

namespace bvtest {

namespace {

// A complete list, or the given text, with the first occurrence of `from` replaced by `to`.
std::string changed(std::string_view from, std::string_view to, std::string text = listText("name"))
{
    const size_t place = text.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return text.replace(place, from.size(), to);
}

std::string nested(const std::string &begin, const std::string &end, int depth)
{
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += begin;
    for (int i = 0; i < depth; ++i)
        text += end;
    return changed("<key>PlistVersion</key>", "<key>more</key>" + text + "<key>PlistVersion</key>");
}

struct TextRow
{
    const char *what;
    bool accepted;
    std::string text;
};

} // namespace

TEST(ListCheck, AcceptsOnlyCompleteLists)
{
    const std::string open = "<plist version=\"1.0\">\n";
    const std::string close = "</dict>\n</plist>";
    const TextRow rows[] = {
        {"complete", true, listText("name", 3)},
        {"texts in other languages", true, listText("\xe5\x90\x8d \xf0\x9f\x96\xa8 &amp; &#233;")},
        {"no encoding named", true, changed(" encoding=\"UTF-8\"", "")},
        {"document type by name", true, changed(open, "<!DOCTYPE plist SYSTEM \"list.dtd\">" + open)},
        {"comments, instructions and blanks around", true, listText("x") + "\n<!-- end --><?tool end?>\n"},
        {"a byte-order mark", true, "\xEF\xBB\xBF" + listText("x")},
        {"empty", false, ""},
        {"UTF-16 declared", false, changed("UTF-8", "UTF-16")},
        {"broken UTF-8", false, listText("\xff")},
        {"control character", false, listText("\x01")},
        {"NUL", false, listText(std::string_view("a\0b", 3))},
        {"reference to a control character", false, listText("&#0;")},
        {"undeclared entity", false, listText("&bogus;")},
        {"undeclared entity with an outer document type", false,
         changed(open, "<!DOCTYPE plist SYSTEM \"list.dtd\">" + open, listText("&bogus;"))},
        {"declared entity", false, changed(open, "<!DOCTYPE plist [<!ENTITY e \"x\">]>" + open)},
        {"two roots", false, listText("x") + "<plist><dict/></plist>"},
        {"no plist element", false, changed(open, "", changed("</plist>", ""))},
        {"unknown element", false, nested("<other>", "</other>", 1)},
        {"array as the root", false, changed("<dict>", "<array><dict>", changed(close, "</dict></array></plist>"))},
        {"value without a key", false, nested("", "<true/>", 2)},
        {"key without a value", false, changed("<key>PlistVersion</key>", "<key>a</key><key>PlistVersion</key>")},
        {"key at the end", false, changed("<integer>1</integer>\n</dict>", "</dict>")},
        {"text between elements", false, changed("</dict>\n<key>SIM", "</dict>x<key>SIM")},
        {"element inside a string", false, listText("<string>x</string>")},
        {"integer that is none", false, changed("<integer>1<", "<integer>one<")},
        {"integer without a digit", false, changed("<integer>1<", "<integer>-<")},
        {"a class missing", false, changed("SIM", "sim")},
        {"a field missing", false, changed("<key>Location</key>", "<key>location</key>")},
        {"a class twice", false, changed("<key>PlistVersion</key>", "<key>RGB</key><true/><key>PlistVersion</key>")},
        {"a field twice", false, changed("<key>iNum</key>", "<key>InMenu</key><true/><key>iNum</key>")},
        {"a field that is no dictionary", false,
         changed("<key>Location</key><dict>", "<key>Location</key><true/><key>other</key><dict>")},
        {"classes one level too deep", false,
         changed("<dict>", "<dict><key>list</key><dict>", changed(close, "</dict></dict></plist>"))},
        {"as deep as may be", true, nested("<array>", "</array>", 31)},
        {"too deep", false, nested("<array>", "</array>", 32)},
        {"nested deeply", false, nested("<array>", "</array>", 100000)},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(!bv::faultOfListText(row.text).has_value(), row.accepted) << row.what;
}

TEST(ListCheck, RefusesTruncatedLists)
{
    const std::string text = listText("name");
    const size_t end = text.rfind('>') + 1;
    for (size_t length = 0; length < end; ++length)
        ASSERT_TRUE(bv::faultOfListText(std::string_view(text).substr(0, length))) << length;
}

} // namespace bvtest
