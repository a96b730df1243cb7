// SPDX-License-Identifier: GPL-2.0-or-later
// The list file: writing, reading back, and the handling of wrong, damaged and hostile files.
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileOperations.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <cstring>
#include <expat.h>
#include <gtest/gtest.h>
#include <map>
#include <sys/stat.h>

namespace {

using bvtest::Lists;
using bvtest::TestRoot;
using std::filesystem::path;

using FieldTexts = std::map<std::string, std::string>; // field key to the XML inside its dictionary

std::string entry(const std::string &key, const std::string &value)
{
    return "<key>" + key + "</key>" + value;
}

std::string number(const std::string &key, const std::string &value)
{
    return entry(key, "<integer>" + value + "</integer>");
}

std::string dict(const std::string &inside)
{
    return "<dict>" + inside + "</dict>";
}

std::string list(const std::string &root)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + root + "</plist>\n";
}

// A class dictionary with the count and all six fields, of which only the given ones have contents.
std::string classDict(FieldTexts fields = {}, const std::string &count = "")
{
    for (const char *key :
         {cIndexOnDeviceKey, cInMenuKey, cProfileClassKey, cFileNameKey, cProfileNameKey, cLocationKey})
        fields.try_emplace(key, "");
    std::string inside = count;
    for (const auto &[key, text] : fields)
        inside += entry(key, dict(text));
    return dict(inside);
}

std::string listFile(const std::string &rgb = classDict(), const std::string &sim = classDict(),
                     const std::string &dst = classDict())
{
    return list(dict(entry("RGB", rgb) + entry("SIM", sim) + entry("DST", dst)));
}

// The state codes of slots 0, 1, 2 …
std::string inMenu(const std::vector<int> &codes)
{
    std::string text;
    bv::SlotKey key(cInMenuKey);
    for (size_t slot = 0; slot < codes.size(); ++slot)
        text += number(key.at(static_cast<int>(slot)), std::to_string(codes[slot]));
    return text;
}

bool isWellFormed(const std::string &xml)
{
    const XML_Parser parser = XML_ParserCreate(nullptr);
    const bool fine = XML_Parse(parser, xml.data(), static_cast<int>(xml.size()), 1) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return fine;
}

class ListFile : public testing::Test
{
protected:
    int32_t read() { return BVPListReadProfile_All(&m_lists->rgb, &m_lists->sim, &m_lists->dst); }

    // Expects that every read of the text fails and changes no list.
    void expectUnreadable(const std::string &what)
    {
        std::memset(static_cast<void *>(m_lists.get()), 0x5A, sizeof(Lists));
        const auto before = std::make_unique<Lists>(*m_lists);
        EXPECT_EQ(read(), -1) << what;
        EXPECT_EQ(std::memcmp(m_lists.get(), before.get(), sizeof(Lists)), 0) << what;
    }

    void expectUnreadableText(const std::string &text, const std::string &what)
    {
        TestRoot::writeList(text);
        expectUnreadable(what);
    }

    const ProfileRecord &rgb(int slot) const { return m_lists->rgb.records[slot]; }

    TestRoot m_root;
    bvtest::NamedUser m_user;
    std::unique_ptr<Lists> m_lists = bvtest::makeLists();
};

TEST_F(ListFile, ThreeFullListsAreReadBackUnchanged)
{
    const auto written = bvtest::makeLists();
    bvtest::fill(written->rgb, "<Büro> & \"Haus\" 印刷");
    bvtest::fill(written->sim, " blanks\tand\nlines ");
    bvtest::fill(written->dst, "");
    written->rgb.records[499] = bvtest::makeRecord(-7, "", -2147483647 - 1, 2147483647);
    const auto xml = bv::profileListXml(written->rgb, written->sim, written->dst);
    ASSERT_TRUE(xml);
    EXPECT_TRUE(isWellFormed(*xml));
    TestRoot::writeList(*xml);
    ASSERT_EQ(read(), 0);
    EXPECT_EQ(std::memcmp(m_lists.get(), written.get(), sizeof(Lists)), 0);
}

TEST_F(ListFile, AnEmptyListIsWrittenWithAllItsSlots)
{
    const std::string xml = bv::profileListXml(m_lists->rgb, m_lists->sim, m_lists->dst).value();
    TestRoot::writeList(xml);
    const bv::PropertyList file = bv::readProfileListFile();
    EXPECT_EQ(file.root().item("PlistVersion").number(), 1);
    EXPECT_FALSE(file.root().item("DriverAvail"));
    size_t keys = 0;
    for (size_t at = xml.find("<key>"); at != std::string::npos; at = xml.find("<key>", at + 1))
        ++keys;
    EXPECT_EQ(keys, 3u * (6 * 500 + 6 + 1 + 1) + 1);
    EXPECT_EQ(file.root().item("SIM").item("FileName").item("FileName0499").text(), "");
}

TEST_F(ListFile, TextsThatXmlDoesNotAllowNeverDamageTheFile)
{
    struct Row
    {
        const char *bytes;
        const char *readBack;
    };
    // Invalid UTF-8: a character cut at the end of the field, Latin-1, an overlong form, a surrogate. The key is left
    // out, so the field stays empty. From valid texts, characters that XML does not allow are removed.
    const Row rows[] = {
        {"0123456789012345678901234567\xE5\x8D\xB0\xE5", ""},
        {"caf\xE9", ""},
        {"\xED\xA0\x80", ""},
        {"a\x01"
         "b\x1F"
         "c\x7F",
         "abc\x7F"},
        {"x\xEF\xBF\xBFy\xEF\xBF\xBEz\xEF\xBF\xBD", "xyz\xEF\xBF\xBD"},
    };
    for (const Row &row : rows) {
        *m_lists = Lists{};
        bvtest::add(m_lists->sim, bvtest::makeRecord(3, "first.icc"));
        bvtest::add(m_lists->sim, bvtest::makeRecord(3, "second.icc"));
        std::memcpy(m_lists->sim.records[0].ProfileName, row.bytes, std::strlen(row.bytes)); // may fill all 32 bytes
        const std::string xml = bv::profileListXml(m_lists->rgb, m_lists->sim, m_lists->dst).value();
        EXPECT_TRUE(isWellFormed(xml)) << row.bytes;
        TestRoot::writeList(xml);
        *m_lists = Lists{};
        ASSERT_EQ(read(), 0);
        EXPECT_EQ(bv::fieldText(m_lists->sim.records[0].ProfileName), row.readBack);
        EXPECT_EQ(bv::fieldText(m_lists->sim.records[0].FileName), "first.icc");
        EXPECT_EQ(bv::fieldText(m_lists->sim.records[1].FileName), "second.icc");
    }
}

TEST_F(ListFile, NamesAreCutAt31Bytes)
{
    const std::string cut31(31, 'a');
    const std::string halfCharacter = std::string(30, 'a') + "\xC3";
    struct Row
    {
        std::string stored;
        std::string read;
    };
    const Row rows[] = {
        {cut31, cut31},
        {std::string(32, 'a'), cut31},
        {std::string(200, 'a'), cut31},
        {std::string(30, 'a') + "é", halfCharacter}, // cut inside a character: the printer counts bytes
        {"", ""},
        {"&lt;&amp;&#233;&gt;", "<&é>"},
    };
    for (const Row &row : rows) {
        *m_lists = Lists{};
        TestRoot::writeList(
            listFile(classDict({{"InMenu", inMenu({3})},
                                {"ProfileName", entry("ProfileName0000", "<string>" + row.stored + "</string>")}})));
        ASSERT_EQ(read(), 0);
        EXPECT_EQ(bv::fieldText(rgb(0).ProfileName), row.read) << row.stored;
        EXPECT_EQ(rgb(0).ProfileName[31], '\0');
    }
}

TEST_F(ListFile, TheCountIsTheNumberOfRecordsInUseDespiteTheFile)
{
    for (const char *count : {"", "<integer>2</integer>", "<integer>3</integer>", "<integer>-1</integer>",
                              "<integer>501</integer>", "<integer>2147483648</integer>",
                              "<integer>99999999999999999999</integer>", "<real>1e300</real>", "<string>2</string>"}) {
        *m_lists = Lists{};
        TestRoot::writeList(
            listFile(classDict({{"InMenu", inMenu({1, 6})}}, *count ? entry("iNum", count) : std::string())));
        ASSERT_EQ(read(), 0) << count;
        EXPECT_EQ(m_lists->rgb.count, 2) << count;
        EXPECT_EQ(rgb(1).InMenu, 6);
    }
}

TEST_F(ListFile, AGapLosesTheLastRecordsUnlessTheCountIsRight)
{
    TestRoot::writeList(listFile(classDict({{"InMenu", inMenu({1, 0, 3})}}, number("iNum", "3")),
                                 classDict({{"InMenu", inMenu({1, 0, 3})}}, number("iNum", "2"))));
    ASSERT_EQ(read(), 0);
    EXPECT_EQ(m_lists->rgb.count, 2);
    EXPECT_EQ(rgb(2).InMenu, 0);
    EXPECT_EQ(m_lists->sim.count, 2);
    EXPECT_EQ(m_lists->sim.records[2].InMenu, 3); // the count was right, so nothing was cleared
}

TEST_F(ListFile, NumbersAreCutToIntegersAndOtherTypesIgnored)
{
    struct Row
    {
        const char *value;
        int32_t read; // 77 is what the field held
    };
    const Row rows[] = {
        {"<integer>5</integer>", 5},
        {"<integer>7</integer>", 7}, // unknown code, stored nevertheless
        {"<real>-3.9</real>", -3},
        {"<real>1e20</real>", 2147483647},
        {"<real>nan</real>", 77},
        {"<integer>2147483648</integer>", 2147483647},
        {"<integer>-2147483649</integer>", -2147483647 - 1},
        {"<integer>18446744073709551615</integer>", 2147483647},
        {"<integer>-99999999999999999999999</integer>", -2147483647 - 1},
        {"<integer> +0x1F\n</integer>", 31},
        {"<real>-1e999</real>", -2147483647 - 1},
        {"<date>2024-02-29T12:00:00Z</date>", 77},
        {"<data>AAEC\n</data>", 77},
        {"<true/>", 77},
        {"<string>4</string>", 77},
        {"<array><integer>4</integer></array>", 77},
    };
    for (const Row &row : rows) {
        *m_lists = Lists{};
        m_lists->rgb.records[0].Location = 77;
        TestRoot::writeList(listFile(classDict(
            {{"InMenu", inMenu({3})},
             {"Location", entry("Location0000", row.value)},
             {"FileName", entry("FileName0000", "<integer>3</integer>") + entry("FileName0001", row.value)}})));
        ASSERT_EQ(read(), 0) << row.value;
        EXPECT_EQ(rgb(0).Location, row.read) << row.value;
        EXPECT_EQ(bv::fieldText(rgb(0).FileName), "");
    }
}

TEST_F(ListFile, AMissingDictionaryFailsTheWholeReadButOnlyItsClass)
{
    std::vector<std::string> damaged = {"<dict/>", "<array/>", "<string>RGB</string>"};
    for (const char *field : {"IndexOnDevice", "InMenu", "ProfileClass", "Location", "FileName", "ProfileName"}) {
        const std::string found = entry(field, "<dict></dict>");
        for (const std::string &instead : {std::string(), entry(field, "<array></array>")})
            damaged.push_back(classDict().replace(classDict().find(found), found.size(), instead));
    }
    for (const std::string &text : damaged) {
        const std::string good = classDict({{"InMenu", inMenu({3})}});
        expectUnreadableText(listFile(good, text, good), text);
        *m_lists = Lists{};
        TestRoot::writeList(listFile(good, text, good));
        EXPECT_EQ(BVPListReadProfile_Dict(&m_lists->dst, kProfileDST), 0);
        EXPECT_EQ(m_lists->dst.count, 1);
        EXPECT_EQ(BVPListReadProfile_Dict(&m_lists->sim, kProfileSIM), -1);
        EXPECT_EQ(BVPListReadProfile_Dict_Pap(&m_lists->sim, kProfileSIM), -1);
    }
    EXPECT_EQ(BVPListReadProfile_Dict(&m_lists->rgb, 3), -1);
}

TEST_F(ListFile, TheCompactingReadLeavesOutCode2AndReads4As6)
{
    FieldTexts fields = {{"InMenu", inMenu({2, 1, 4}) + number("InMenu0004", "3")}};
    fields["FileName"] = entry("FileName0000", "<string>a</string>") + entry("FileName0001", "<string>b</string>") +
                         entry("FileName0002", "<string>c</string>") + entry("FileName0004", "<string>e</string>");
    TestRoot::writeList(listFile(classDict(fields, number("iNum", "3"))));
    ASSERT_EQ(BVPListReadProfile_Dict_Pap(&m_lists->rgb, kProfileRGB), 0);
    EXPECT_EQ(bv::fieldText(rgb(0).FileName), "b");
    EXPECT_EQ(rgb(0).InMenu, 1);
    EXPECT_EQ(bv::fieldText(rgb(1).FileName), "c");
    EXPECT_EQ(rgb(1).InMenu, 6);
    EXPECT_EQ(rgb(2).InMenu, 0); // slot 3 has no code and is kept as a gap
    EXPECT_EQ(bv::fieldText(rgb(3).FileName), "e");
    EXPECT_EQ(m_lists->rgb.count, 3); // as in the file, so the gap stays
}

TEST_F(ListFile, ClassDictionariesBeforeAMissingOneAreReturned)
{
    TestRoot::writeList(list(dict(entry("RGB", classDict({}, number("iNum", "4"))) + entry("DST", classDict()))));
    bv::PropertyList rgb, sim, dst;
    EXPECT_EQ(BVPListMappingGetMainDict_FromPlist(&rgb, &sim, &dst), -1);
    EXPECT_TRUE(rgb && !sim && !dst);
    ProfileFieldDictionaries fields;
    int32_t count = 9;
    EXPECT_EQ(BVPListMappingGetSubDict(rgb.root(), &fields, &count), 0);
    EXPECT_EQ(count, 4);
}

TEST_F(ListFile, OtherXmlAroundAndWithinAListIsSkipped)
{
    const std::string good = listFile(classDict({{"InMenu", inMenu({3})}}));
    const size_t root = good.find("<plist");
    const size_t inside = good.find("<integer>3") + std::strlen("<integer>");
    const std::string odd = "<!-- </plist> --><?tool <dict> ?>\n";
    const std::pair<const char *, std::string> rows[] = {
        {"behind the document element", good + odd},
        {"before it", std::string(good).insert(root, odd)},
        {"in front of everything", good.substr(root).insert(0, odd)},
        {"around its value", std::string(good).insert(good.find("<dict"), odd)},
        {"inside a value", std::string(good).insert(inside, "<!-- x -->")},
        {"a byte-order mark", "\xEF\xBB\xBF" + good},
        {"a document type", std::string(good).insert(root, "<!DOCTYPE plist PUBLIC \"p\" \"s\" [<!-- none -->]>")},
        {"a section", std::string(good).replace(inside, 1, "<![CDATA[3]]>")},
        {"another encoding", std::string(good).replace(good.find("UTF-8"), 5, "ISO-8859-1")},
    };
    for (const auto &[what, text] : rows) {
        *m_lists = Lists{};
        TestRoot::writeList(text);
        EXPECT_EQ(read(), 0) << what;
        EXPECT_EQ(rgb(0).InMenu, 3) << what;
    }
}

TEST_F(ListFile, DamagedAndHostileTextsAreUnreadable)
{
    expectUnreadable("missing");
    const std::string good = listFile(classDict({{"InMenu", inMenu({3})}}));
    const std::pair<const char *, std::string> rows[] = {
        {"empty", ""},
        {"cut short", good.substr(0, good.size() - 2)},
        {"root is an array", list("<array/>")},
        {"binary", std::string("bplist00\xD0\x08\0\0\0\0\0\0\x01\x01", 18) + std::string(22, '\0')},
        {"NUL in a string", list(dict(entry("a", "<string>x" + std::string(1, '\0') + "</string>")))},
        {"something behind the end", good + "x"},
        {"two lists", good + good},
        {"no UTF-8", listFile(classDict({{"FileName", entry("FileName0000", "<string>caf\xE9</string>")}}))},
        {"an integer that is none", listFile(classDict({}, number("iNum", "abc")))},
        {"an integer without digits", listFile(classDict({}, number("iNum", "")))},
        {"a real number that is none", listFile(classDict({}, entry("iNum", "<real>1,5</real>")))},
        {"a date that is none", listFile(classDict({}, entry("iNum", "<date>today</date>")))},
        {"data that is none", listFile(classDict({}, entry("iNum", "<data>&amp;</data>")))},
        {"a key without a value at the end", listFile(classDict({{"InMenu", "<key>InMenu0000</key>"}}))},
        {"a key without a value", listFile(classDict({}, "<key>k</key>" + number("iNum", "1")))},
        {"a value without a key", listFile(classDict({}, "<true/>"))},
        {"text between elements", listFile(classDict({}, "x"))},
        {"an unknown element", listFile(classDict({}, entry("iNum", "<number>1</number>")))},
        {"no plist element", "<?xml version=\"1.0\"?>" + dict("")},
        {"byte order mark of UTF-16", "\xFF\xFE" + good},
        {"undefined entity", listFile(classDict({{"FileName", entry("FileName0000", "<string>&no;</string>")}}))},
    };
    for (const auto &[what, text] : rows)
        expectUnreadableText(text, what);

    // A sparse file, which takes no space on the disk.
    TestRoot::writeList(good);
    std::filesystem::resize_file(TestRoot::listFile(), 100'000'000);
    expectUnreadable("100 MB");
}

// The seeds of the fuzz targets, including inputs that once broke a reader.
TEST_F(ListFile, EverySeedIsRefusedOrCanBeReadAndWrittenAgain)
{
    size_t readable = 0;
    size_t seeds = 0;
    for (const auto &seed : std::filesystem::directory_iterator(path(BV_SOURCE_DIR) / "fuzz/seeds/list_file")) {
        if (!seed.is_regular_file())
            continue;
        TestRoot::writeList(TestRoot::readFile(seed.path()));
        *m_lists = Lists{};
        ++seeds;
        if (read() != 0)
            continue;
        ++readable;
        const auto xml = bv::profileListXml(m_lists->rgb, m_lists->sim, m_lists->dst);
        ASSERT_TRUE(xml) << seed.path();
        EXPECT_TRUE(isWellFormed(*xml)) << seed.path();
    }
    EXPECT_GE(readable, 7u);
    EXPECT_GT(seeds, readable);
}

TEST_F(ListFile, OnlyARegularFileIsRead)
{
    const path place = TestRoot::listFile();
    const path elsewhere = m_root.folder() / "elsewhere.plist";
    std::ofstream(elsewhere) << listFile();
    std::filesystem::create_symlink(elsewhere, place);
    expectUnreadable("symbolic link");
    std::filesystem::remove(place);
    std::filesystem::create_directory(place);
    expectUnreadable("folder");
    std::filesystem::remove(place);
    ASSERT_EQ(mkfifo(place.c_str(), 0600), 0);
    expectUnreadable("FIFO"); // the read must not wait for a writer
}

} // namespace
