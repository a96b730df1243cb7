// SPDX-License-Identifier: GPL-2.0-or-later
// The answer to each request, and its effect on the folder.
#include "helper/HelperFixture.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace bvtest {

using Requests = HelperTest;

TEST_F(Requests, WritesTheListInPiecesAndCommitsIt)
{
    const std::string text = listText("first", 90);
    umask(0077);
    EXPECT_TRUE(answers(true, {kPiece, url(), text.substr(0, 40000)}));
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist.part");
    EXPECT_TRUE(answers(true, {kPiece, url(), text.substr(40000)}));
    EXPECT_TRUE(answers(true, {kPiece, url(), ""}));
    EXPECT_TRUE(answers(true, {kCommit, url()}));
    EXPECT_EQ(contents(current()), text);
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    struct stat status = {};
    ASSERT_EQ(stat(real(current()).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0644U);
    umask(022);
    EXPECT_TRUE(answers(false, {kCommit, url()}));
    EXPECT_TRUE(writeList(listText("second")));
    EXPECT_EQ(contents(current()), listText("second"));
}

TEST_F(Requests, ExistAndRemoveActOnTheNamedFile)
{
    EXPECT_TRUE(answers(true, {kAdmin, current()}));
    EXPECT_TRUE(answers(false, {kExist, current()}));
    EXPECT_TRUE(answers(false, {kRemove, current()}));
    put(current(), "any text");
    put(previous(), "older");
    EXPECT_TRUE(answers(true, {kExist, current()}));
    EXPECT_TRUE(answers(false, {kExist, previous()}));
    EXPECT_TRUE(answers(true, {kRemove, previous()}));
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    EXPECT_TRUE(answers(true, {kRemove, current()}));
    EXPECT_EQ(names(), "");
}

TEST_F(Requests, SwapCopiesOneFileOverTheOther)
{
    const std::string bytes = std::string("not a list \0 at all", 19) + std::string(200000, 'x');
    EXPECT_TRUE(answers(false, {kSwap, "2", current(), previous()}));
    put(current(), bytes);
    EXPECT_TRUE(answers(false, {kSwap, "3", current(), previous()}));
    EXPECT_TRUE(answers(true, {kSwap, "2", current(), previous()}));
    EXPECT_EQ(contents(previous()), bytes);
    EXPECT_EQ(contents(current()), bytes);
    put(current(), "changed");
    put(current() + ".copy", "left by a copy that was killed");
    for (const char *code : {"", "1", "02", "2 ", "+2", "4", "2\n"})
        EXPECT_TRUE(answers(false, {kSwap, code, current(), previous()})) << code;
    EXPECT_TRUE(answers(false, {kSwap, "3", previous(), current()}));
    EXPECT_EQ(contents(current()), "changed");
    EXPECT_TRUE(answers(true, {kSwap, "3", current(), previous()}));
    EXPECT_EQ(contents(current()), bytes);
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist " + m_login + "-QL70-profile.prev.plist");
}

TEST_F(Requests, AnUnreadableListGoesAsideInsteadOfOverTheLastGoodCopy)
{
    const std::string aside = current().substr(0, current().size() - 6) + ".unreadable.plist";
    const auto swap = [this] { return answers(true, {kSwap, "2", current(), previous()}); };
    const auto expect = [&](std::string_view before, std::string_view kept) {
        EXPECT_EQ(contents(previous()), before);
        EXPECT_EQ(contents(aside), kept);
    };
    const std::string good = listText("good");
    put(current(), good);
    EXPECT_TRUE(swap());
    put(current(), "damaged");
    for (int opening = 0; opening < 2; ++opening) {
        EXPECT_TRUE(swap());
        expect(good, "damaged");
    }
    // The next unreadable list replaces it only after a readable one has been committed.
    put(current(), "damaged once more");
    EXPECT_TRUE(swap());
    expect(good, "damaged");

    EXPECT_TRUE(writeList(listText("fresh")));
    expect(good, "damaged");
    EXPECT_TRUE(swap());
    expect(listText("fresh"), "damaged");
    const std::string cut = listText("cut").substr(0, 500);
    put(current(), cut);
    EXPECT_TRUE(swap());
    expect(listText("fresh"), cut);
    // A readable list that comes back by a swap, or by hand, counts as well.
    EXPECT_TRUE(answers(true, {kSwap, "3", current(), previous()}));
    put(current(), "after a swap");
    EXPECT_TRUE(swap());
    expect(listText("fresh"), "after a swap");
    put(current(), good);
    EXPECT_TRUE(swap());
    put(current(), "after a copy");
    EXPECT_TRUE(swap());
    expect(good, "after a copy");
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist " + m_login + "-QL70-profile.prev.plist " + m_login +
                           "-QL70-profile.unreadable.plist");
}

TEST_F(Requests, OnlyTheExactPathOfAListIsAccepted)
{
    put(current(), "old");
    const std::string folder = current().substr(0, current().rfind('/'));
    const std::string file = current().substr(folder.size() + 1);
    const std::vector<std::string> paths = {
        "",
        file,
        folder,
        folder + "/./" + file,
        folder + "/../vnd.brevane.printers.QL70/" + file,
        "\n" + current(),
        current() + "/",
        real(current()),
        currentPath("/../" + m_login),
        currentPath("no-such-user"),
    };
    for (const std::string &path : paths) {
        EXPECT_TRUE(answers(false, {kAdmin, path})) << path;
        EXPECT_TRUE(answers(false, {kExist, path})) << path;
        EXPECT_TRUE(answers(false, {kRemove, path})) << path;
        EXPECT_TRUE(answers(false, {kSwap, "2", path, previous()})) << path;
        EXPECT_TRUE(answers(false, {kSwap, "2", current(), path})) << path;
    }
    EXPECT_EQ(names(), file);
}

TEST_F(Requests, OnlyTheExactUrlOfAListIsAccepted)
{
    const std::string escaped = url().substr(0, url().rfind('/') + 1) + "%" + "0123456789ABCDEF"[m_login[0] >> 4] +
                                "0123456789ABCDEF"[m_login[0] & 15] + url().substr(url().rfind('/') + 2);
    const std::vector<std::string> urls = {
        "",
        current(),
        "FILE://" + current(),
        "file://localhost" + current(),
        "file://" + real(current()),
        url() + "?x",
        url() + "%00",
        escaped,
        "file://" + previous(),
        "file://" + staging(),
    };
    for (const std::string &wrong : urls) {
        EXPECT_TRUE(answers(false, {kPiece, wrong, listText("x")})) << wrong;
        EXPECT_TRUE(answers(false, {kCommit, wrong})) << wrong;
    }
    EXPECT_EQ(names(), "");
}

TEST_F(Requests, UnknownRequestsPrintOneFalseAndChangeNothing)
{
    put(current(), "old");
    const RunResult nothing = run({});
    EXPECT_EQ(nothing.output, "");
    EXPECT_EQ(nothing.exitCode, 2);

    struct Case
    {
        std::vector<std::string> arguments;
        std::string printed;
    };
    std::vector<Case> cases = {
        {{""}, "=FALSE\n"},
        {{"bvplistexistprofile_xpc", current()}, "bvplistexistprofile_xpc=FALSE\n"},
        {{"bvPListExistProfile_XPC ", current()}, "bvPListExistProfile_XPC =FALSE\n"},
        {{"x\nbvPListIsAdminProfile_XPC=TRUE\x7f", current()}, "x?bvPListIsAdminProfile_XPC=TRUE?=FALSE\n"},
    };
    const std::map<std::string, size_t> needed = {{kAdmin, 1}, {kExist, 1},  {kRemove, 1},        {kSwap, 3},
                                                  {kPiece, 2}, {kCommit, 1}, {"mibwalk_XPC", 10}, {"other", 99}};
    for (const auto &[name, number] : needed) {
        for (size_t given = 0; given <= 20; ++given) {
            if (given == number)
                continue;
            std::vector<std::string> arguments(given + 1, current());
            arguments[0] = name;
            cases.push_back({arguments, name + "=FALSE\n"});
        }
    }
    for (const Case &row : cases) {
        const RunResult result = run(row.arguments);
        EXPECT_EQ(result.output, row.printed);
        EXPECT_EQ(result.exitCode, 2) << row.printed;
        EXPECT_NE(result.errors, "");
    }
    EXPECT_EQ(contents(current()), "old");
    EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
}

TEST_F(Requests, ATextThatIsNoListLeavesTheOldOne)
{
    ASSERT_TRUE(writeList(listText("old")));
    for (const char *text : {"", "<x/>", "<true/>", "<dict/>", "<plist/>", "<plist version=\"1.0\"><dict/></plist>"}) {
        ASSERT_TRUE(answers(true, {kPiece, url(), std::string("<?xml version=\"1.0\"?>") + text}));
        EXPECT_TRUE(answers(false, {kCommit, url()})) << text;
        EXPECT_EQ(contents(current()), listText("old"));
        EXPECT_EQ(names(), m_login + "-QL70-profile.plist");
    }
}

TEST_F(Requests, AListAboveTheSizeLimitIsRefused)
{
    ASSERT_TRUE(answers(true, {kPiece, url(), "<?xml version=\"1.0\"?><!--"}));
    const std::string piece(120000, 'x');
    int taken = 0;
    while (taken < 100 && answers(true, {kPiece, url(), piece}))
        ++taken;
    EXPECT_EQ(taken, (4 << 20) / 120000);
    EXPECT_EQ(names(), "");
    EXPECT_TRUE(answers(false, {kPiece, url(), piece}));
}

} // namespace bvtest
