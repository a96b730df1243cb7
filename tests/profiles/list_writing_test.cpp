// SPDX-License-Identifier: GPL-2.0-or-later
// Requests to the helper: which are sent, in which order, and the effect of their answers.
#include "profiles/HelperRequest.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileOperations.h"
#include "profiles/TextPieces.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <cstring>
#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using bvtest::Lists;
using bvtest::makeLists;
using bvtest::makeRecord;
using bvtest::TestRoot;
using testing::ElementsAre;

constexpr char kCurrent[] = "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70/ada-QL70-profile.plist";
constexpr char kPrevious[] =
    "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70/ada-QL70-profile.prev.plist";

// Answers TRUE to every request except the one with a given number, and records the requests.
class RecordingTransport : public bv::HelperTransport
{
public:
    bool available() override { return present; }
    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override
    {
        requests.emplace_back(request);
        this->arguments.emplace_back(arguments.begin(), arguments.end());
        const bool refused = requests.size() == refusedRequest;
        return std::string(request) + (refused ? "=FALSE\n" : "=TRUE\n");
    }

    // The pieces of the file, joined.
    std::string fileText() const
    {
        std::string text;
        for (size_t at = 0; at < requests.size(); ++at)
            if (requests[at] == "writeDataToPlistFile_XPC")
                text += arguments[at].at(1);
        return text;
    }

    bool present = true;
    size_t refusedRequest = 0;
    std::vector<std::string> requests;
    std::vector<std::vector<std::string>> arguments;
};

class Requests : public testing::Test
{
protected:
    Requests() { bv::setHelperTransport(&m_helper); }
    ~Requests() override { bv::setHelperTransport(nullptr); }

    int32_t write() { return BVPListWriteProfile_All(&m_lists->rgb, &m_lists->sim, &m_lists->dst); }
    std::string text() const { return bv::profileListXml(m_lists->rgb, m_lists->sim, m_lists->dst).value(); }

    TestRoot m_root;
    bvtest::NamedUser m_user;
    RecordingTransport m_helper;
    std::unique_ptr<Lists> m_lists = makeLists();
};

size_t utf16Units(std::string_view text)
{
    size_t units = 0;
    for (const char c : text)
        units += (c & 0xC0) == 0x80 ? 0 : (c & 0xF8) == 0xF0 ? 2 : 1;
    return units;
}

TEST_F(Requests, AFullListIsSentInPiecesAndCommittedUnderItsUrl)
{
    // Names full of three-byte characters make pieces as large in bytes as they can be.
    for (ProfileList *list : {&m_lists->rgb, &m_lists->sim, &m_lists->dst}) {
        bvtest::fill(*list, "印刷印刷印刷印刷印刷");
        for (ProfileRecord &record : list->records)
            bv::setFieldText(record.FileName, "印刷印刷印刷印刷印刷");
    }
    ASSERT_EQ(write(), 0);
    const std::string xml = text();
    EXPECT_EQ(m_helper.fileText(), xml);
    const size_t pieces = (utf16Units(xml) + 89999) / 90000;
    ASSERT_EQ(m_helper.requests.size(), 1 + pieces + 1);
    EXPECT_EQ(m_helper.requests.front(), "bvPListIsAdminProfile_XPC");
    EXPECT_EQ(m_helper.requests.back(), "writeDataToPlistFileRename_XPC");
    const std::string url = std::string("file://") + kCurrent;
    EXPECT_THAT(m_helper.arguments.back(), ElementsAre(url));
    size_t largest = 0;
    for (size_t at = 1; at <= pieces; ++at) {
        EXPECT_EQ(m_helper.requests[at], "writeDataToPlistFile_XPC");
        EXPECT_EQ(m_helper.arguments[at].at(0), url);
        EXPECT_EQ(utf16Units(m_helper.arguments[at].at(1)), at < pieces ? 90000 : utf16Units(xml) % 90000);
        largest = std::max(largest, m_helper.arguments[at].at(1).size());
    }
    EXPECT_TRUE(m_helper.arguments[1].at(1).starts_with("<?xml"));
    EXPECT_GE(largest, 109'000u); // the lists above are large enough for the test
    EXPECT_LE(largest, 131'071u); // the longest argument that Linux allows
}

TEST_F(Requests, ARefusedPieceOrCommitEndsTheWriteThere)
{
    bvtest::fill(m_lists->rgb);
    const size_t all = 1 + (text().size() + 89999) / 90000 + 1;
    ASSERT_GE(all, 5u);
    const std::pair<size_t, size_t> rows[] = {{1, 1}, {2, 2}, {3, 3}, {all, all}}; // request refused, requests sent
    for (const auto &[refused, sent] : rows) {
        m_helper.requests.clear();
        m_helper.refusedRequest = refused;
        EXPECT_EQ(write(), -1);
        EXPECT_EQ(m_helper.requests.size(), sent);
    }
    m_helper.present = false;
    m_helper.requests.clear();
    EXPECT_EQ(write(), -1);
    EXPECT_EQ(BVPListIsAdminProfile() + BVPListExistProfile() + BVPListRemove(3), 0);
    EXPECT_TRUE(m_helper.requests.empty());
}

TEST_F(Requests, TheMergingWriteSendsTheMergeAfterOneAdminQuestion)
{
    bvtest::add(m_lists->rgb, makeRecord(4, "stored"));
    bvtest::add(m_lists->rgb, makeRecord(4, "deleted"));
    TestRoot::writeList(text());
    const auto edited = makeLists();
    const auto excluded = makeLists();
    bvtest::add(edited->rgb, makeRecord(6, "new"));
    bvtest::add(edited->dst, makeRecord(6, "new dst"));
    bvtest::add(excluded->rgb, makeRecord(4, "deleted"));
    const auto run = [&] {
        return BVPListWriteProfile_All_Pap(&edited->rgb, &edited->sim, &edited->dst, &excluded->rgb, &excluded->sim,
                                           &excluded->dst);
    };
    ASSERT_EQ(run(), 0);
    EXPECT_EQ(std::count(m_helper.requests.begin(), m_helper.requests.end(), "bvPListIsAdminProfile_XPC"), 1);
    *m_lists = Lists{};
    bvtest::add(m_lists->rgb, makeRecord(4, "stored"));
    bvtest::add(m_lists->rgb, makeRecord(6, "new"));
    bvtest::add(m_lists->dst, makeRecord(6, "new dst"));
    EXPECT_EQ(m_helper.fileText(), text());
}

TEST_F(Requests, WritingOneClassKeepsTheOtherTwo)
{
    bvtest::add(m_lists->rgb, makeRecord(3, "old rgb"));
    bvtest::add(m_lists->dst, makeRecord(3, "old dst"));
    TestRoot::writeList(text());
    const auto changed = makeLists();
    bvtest::add(changed->dst, makeRecord(6, "new dst"));
    const auto out = makeLists();
    EXPECT_EQ(BVPListWriteProfile_Dict(&changed->dst, kProfileDST, &out->rgb, nullptr, &out->dst), 0);
    m_lists->dst = changed->dst;
    EXPECT_EQ(m_helper.fileText(), text());
    EXPECT_EQ(std::memcmp(&out->rgb, &m_lists->rgb, sizeof(ProfileList)), 0);
    EXPECT_EQ(std::memcmp(&out->dst, &changed->dst, sizeof(ProfileList)), 0);

    m_helper.requests.clear();
    EXPECT_EQ(BVPListWriteProfile_Dict(&changed->dst, 3, nullptr, nullptr, nullptr), -1);
    EXPECT_TRUE(m_helper.requests.empty());
    m_helper.refusedRequest = 1;
    EXPECT_EQ(BVPListWriteProfile_Dict(&changed->dst, kProfileDST, nullptr, nullptr, &out->dst), -1);
    EXPECT_EQ(bv::fieldText(out->dst.records[0].FileName), "old dst"); // as in the file: nothing was written
}

TEST_F(Requests, QuestionsAndOrdersSendTheirArgumentsAfterTheAdminQuestion)
{
    using Words = std::vector<std::string>;
    struct Row
    {
        std::function<int32_t()> call;
        int32_t result;
        Words last; // the request after the admin question, with arguments; empty: no request at all
    };
    const auto swap = [](int32_t code) { return [code] { return BVPListSwapProfile(code), 0; }; };
    const Row rows[] = {
        {BVPListExistProfile, 1, {"bvPListExistProfile_XPC", kCurrent}},
        {[] { return BVPListRemove(3); }, 1, {"bvPListRemove_XPC", kCurrent}},
        {[] { return BVPListRemove(2); }, 1, {"bvPListRemove_XPC", kPrevious}},
        {[] { return BVPListRemove(1); }, 0, {}},
        {swap(2), 0, {"bvPListSwapProfile_XPC", "2", kCurrent, kPrevious}},
        {swap(-17), 0, {"bvPListSwapProfile_XPC", "-17", kCurrent, kPrevious}},
    };
    for (const Row &row : rows) {
        m_helper = RecordingTransport();
        EXPECT_EQ(row.call(), row.result);
        if (row.last.empty()) {
            EXPECT_TRUE(m_helper.requests.empty());
            continue;
        }
        ASSERT_THAT(m_helper.requests, ElementsAre("bvPListIsAdminProfile_XPC", row.last.front()));
        EXPECT_THAT(m_helper.arguments.front(), ElementsAre(kCurrent));
        EXPECT_EQ(m_helper.arguments.back(), Words(row.last.begin() + 1, row.last.end()));
        for (size_t refused = 1; refused <= 2; ++refused) {
            m_helper = RecordingTransport();
            m_helper.refusedRequest = refused;
            EXPECT_EQ(row.call(), 0);
            EXPECT_EQ(m_helper.requests.size(), refused);
        }
    }
}

TEST(Pieces, NeverHoldHalfACharacter)
{
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(splitCharEvery("", 90000), Pieces());
    EXPECT_EQ(splitCharEvery("äöü", 2), Pieces({"äö", "ü"}));
    EXPECT_EQ(splitCharEvery("abc😀d", 4), Pieces({"abc", "😀d"})); // the surrogate pair would end after the fourth unit
}

TEST(Paths, AreMadeFromTheLoginNameAndCutToTheBuffer)
{
    EXPECT_EQ(bv::profilePathsFor("").current, "");
    const bv::ProfilePaths cut = bv::profilePathsFor(std::string(300, 'l'));
    EXPECT_EQ(cut.current.size(), 254u);
    EXPECT_TRUE(cut.current.ends_with("lll"));
    const size_t around = bv::profilePathsFor("x").current.size() - 1;
    EXPECT_EQ(bv::profilePathsFor(std::string(254 - around, 'l')).current.size(), 254u);
    EXPECT_TRUE(bv::profilePathsFor(std::string(255 - around, 'l')).current.ends_with(".plis"));
}

// A script in place of the helper, run as a child process.
TEST(HelperChild, DecidesByTheMarkerAnywhereInItsWholeOutput)
{
    const TestRoot root;
    struct Row
    {
        const char *script;
        int32_t admin;
    };
    const Row rows[] = {
        {"echo bvPListIsAdminProfile_XPC=TRUE", 1},
        {"echo bvPListIsAdminProfile_XPC=FALSE; exit 1", 0},
        {"printf 'warning\\nxbvPListIsAdminProfile_XPC=TRUEx'; exit 3", 1},
        {"echo bvPListIsAdminProfile_XPC=TRUE >&2", 0},
        {"head -c 1000000 /dev/zero | tr '\\0' x; echo bvPListIsAdminProfile_XPC=TRUE", 1},
        {"echo bvPListIsAdminProfile_XPC=TRUE; kill -9 $$", 1},
        {"kill -SEGV $$", 0},
        {"printf '\\377'; echo bvPListIsAdminProfile_XPC=TRUE", 0}, // not UTF-8, so no answer
    };
    for (const Row &row : rows) {
        TestRoot::installHelper(row.script);
        EXPECT_EQ(BVPListIsAdminProfile(), row.admin) << row.script;
    }
}

TEST(HelperChild, ThatIsMissingOrCannotRunIsARefusal)
{
    const TestRoot root;
    EXPECT_FALSE(bv::helperAvailable());
    EXPECT_EQ(BVPListIsAdminProfile(), 0);
    TestRoot::installHelper("echo bvPListIsAdminProfile_XPC=TRUE");
    const std::filesystem::path helper = bv::mapRootPath(kHelperPath);
    std::filesystem::permissions(helper, std::filesystem::perms(0644));
    EXPECT_TRUE(bv::helperAvailable()); // only the existence of the file counts
    EXPECT_EQ(BVPListIsAdminProfile(), 0);
    const std::string tooLong[] = {std::string(200'000, 'x')};
    std::filesystem::permissions(helper, std::filesystem::perms(0755));
    EXPECT_EQ(bv::runHelper("any", tooLong), std::nullopt);
}

} // namespace
