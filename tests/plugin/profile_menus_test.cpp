// SPDX-License-Identifier: GPL-2.0-or-later
// Stored profiles in the menus of profile rows, and a chosen profile in the ticket.
#include "colorrules/AdvancedColorOptions.h"
#include "platform/Bundle.h"
#include "profiles/DevicePath.h"
#include "profiles/ProfileKinds.h"
#include "profiles/ProfileListFile.h"
#include "common/PDECommon.h"
#include "support/PaneFixture.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <QComboBox>
#include <cstring>

namespace {

using Entry = std::tuple<int32_t, const char *, int32_t>; // state in the menu, file name, location

class ProfileMenus : public testing::Test
{
protected:
    ProfileMenus()
    {
        setPluginBundle({QStringLiteral("/bundle"), {}});
        for (const auto &[menu, kind, keyword] :
             {std::tuple(&rgb, 1, "BVSrc"), {&dst, 2, "BVDst"}, {&sim, 3, "BVSim"}}) {
            rows.push_back({menu, kPDEControlPopUp, keyword, nullptr, nullptr, "", int16_t(kind), nullptr});
            PDECommon::commonGetPPDArrayForUIOption(ppd.get(), keyword, &rows.back().ppdChoices);
        }
        rows.push_back(endControlItem());
    }
    static void fill(ProfileList &list, const std::vector<Entry> &entries)
    {
        for (const auto &[inMenu, fileName, location] : entries)
            bvtest::add(list, bvtest::makeRecord(inMenu, fileName, location, 0, "Office"));
    }
    void write(const std::vector<Entry> &rgbEntries, const std::vector<Entry> &simEntries = {},
               const std::vector<Entry> &dstEntries = {})
    {
        const auto lists = bvtest::makeLists();
        fill(lists->rgb, rgbEntries);
        fill(lists->sim, simEntries);
        fill(lists->dst, dstEntries);
        bvtest::TestRoot::writeList(*bv::profileListXml(lists->rgb, lists->sim, lists->dst));
    }
    int32_t build()
    {
        PDECommon::commonBuildPDEItem(rows.data(), ppd.get());
        return PDECommon::commonAddMenuFromProfilePlist(rows.data());
    }
    static QStringList items(const QComboBox &menu)
    {
        QStringList titles;
        for (int i = 0; i < menu.count(); ++i)
            titles.append(menu.itemText(i));
        return titles;
    }
    int32_t save() { return PDECommon::commonSyncTicketFromPane(&ticket, &session, rows.data()); }
    int32_t restore() { return PDECommon::commonSyncPaneFromTicket(&ticket, &session, rows.data()); }

    const bvtest::TestRoot root;
    static QByteArray option(const char *keyword)
    {
        return bvtest::ppdOption(keyword, "Off sRGB Auto Wide Last", "PickOne", "sRGB");
    }
    bvtest::TestPpd ppd{option("BVSrc") + option("BVDst") + option("BVSim"), nullptr};
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    QComboBox rgb, dst, sim;
    std::vector<PDEControlItem> rows;
};

const QStringList kPpdItems = {"Off text", "sRGB text", "Auto text", "Wide text", "Last text"};

TEST_F(ProfileMenus, WithoutAListTheMenusKeepThePpdsItems)
{
    EXPECT_EQ(build(), -1);
    EXPECT_EQ(items(rgb), kPpdItems);
}

TEST_F(ProfileMenus, EachKindShowsItsListInOrderWithDuplicates)
{
    write({{3, "a.icc", 4}, {1, "b.icc", 4}, {6, "a.icc", 4}, {2, "c.icc", 4}, {5, "d.icc", 5}, {4, "e.icc", 5}},
          {{4, "sim.icc", 5}}, {{3, "dst.icc", 7}});
    EXPECT_EQ(build(), noErr);
    EXPECT_EQ(items(rgb), kPpdItems + QStringList({"a.icc(Office)Disk", "a.icc(Office)Disk", "e.icc(Office)Card"}));
    EXPECT_EQ(items(sim).mid(5), QStringList({"sim.icc(Office)Card"}));
    EXPECT_EQ(items(dst).mid(5), QStringList({"dst.icc(Office)"})) << "unknown storage has no name";

    rows[2].profileKind = 0; // not a profile row: skipped, with an error status
    EXPECT_EQ(build(), paramErr);
    EXPECT_EQ(items(sim), kPpdItems);
}

TEST_F(ProfileMenus, AChosenProfileGoesIntoTheTicketAndComesBack)
{
    write({{3, "a.icc", 4}, {1, "b.icc", 4}, {6, "c.icc", 5}}, {{3, "s.icc", 4}}, {{3, "d.icc", 4}});
    build();
    for (QComboBox *menu : {&rgb, &dst, &sim}) {
        for (int profile = menu->count() - 1; profile >= 5; --profile) { // profiles follow the five choices
            menu->setCurrentIndex(profile);
            EXPECT_EQ(save(), noErr);
            menu->setCurrentIndex(0);
            restore();
            EXPECT_EQ(menu->currentIndex(), profile);
        }
    }
    rgb.setCurrentIndex(6);
    save();
    EXPECT_EQ(ticket.inQueue("BVSrcCustomFilename"),
              QString::fromStdString(bv::encodeDevicePath("/ataCf1a/data/USfiles/Profiles/c.icc")));
    EXPECT_EQ(ticket.atTop("BVSrcCustom"), "True");
    EXPECT_EQ(ticket.atTop("BVSrc"), "Off") << "the first choice stands in for a profile";

    rgb.setCurrentIndex(2);
    save();
    EXPECT_EQ(ticket.atTop("BVSrcCustom"), "False");
    EXPECT_NE(ticket.atTop("BVSrcCustomFilename"), "-") << "the old path stays; the flag decides";
    rgb.setCurrentIndex(0);
    restore();
    EXPECT_EQ(rgb.currentIndex(), 2);
}

TEST_F(ProfileMenus, RebuildingAMenuWithoutAPpdOptionAddsProfilesOnlyOnce)
{
    write({{3, "a.icc", 4}});
    AdvancedColorOptions pane;
    auto *menu = new QComboBox(&pane);
    menu->setObjectName("menu_iRGBSource");
    pane.createPDEControlTable();
    pane.createPDEItemForPPDKey();
    pane.rebuildProfileItems();
    EXPECT_EQ(items(*menu), QStringList{"a.icc(Office)Disk"});
}

TEST_F(ProfileMenus, AMissingProfileGivesThePpdDefault)
{
    write({{3, "a.icc", 4}, {3, "x.icc", 7}});
    build();
    rgb.setCurrentIndex(6);
    save();
    EXPECT_EQ(ticket.inQueue("BVSrcCustomFilename"), QString::fromStdString(bv::encodeDevicePath("x.icc")))
        << "unknown storage has no folder";
    restore();
    EXPECT_EQ(rgb.currentIndex(), 1) << "and is never found again";

    rgb.setCurrentIndex(5);
    save();
    write({{3, "other.icc", 4}});
    restore();
    EXPECT_EQ(rgb.currentIndex(), 1);
}

TEST_F(ProfileMenus, TicketEntriesOfAnyKindNameNoProfile)
{
    write({{3, "a.icc", 4}});
    build();
    const QString good = QString::fromStdString(bv::encodeDevicePath("/ata1a/data/USfiles/Profiles/a.icc"));
    struct
    {
        bv::PrintValue name;
        int16_t position;
    } const cases[] = {
        {bv::PrintValue(good), 1},
        {bv::PrintValue(good.toUpper() + QString()), 1},
        {bv::PrintValue(good + "2"), 0},
        {bv::PrintValue(QString()), 0},
        {bv::PrintValue(QString(QChar(0xE9))), 0},
        {bv::PrintValue(QString(5000, u'0')), 0},
        {bv::PrintValue::integer(3), 0},
        {bv::PrintValue(bv::PrintArray{}), 0},
        {bv::PrintValue("?????"), 0}, // invalid UTF-8 and an odd number of characters
    };
    for (const auto &row : cases) {
        ticket.putInQueue("BVSrcCustomFilename", row.name);
        const auto queue = PDECommon::commonGetModelDictionary(&ticket, &session);
        EXPECT_EQ(PDECommon::commonGetTicketAddedProfile(rows.data(), queue), row.position);
    }
    EXPECT_EQ(PDECommon::commonGetTicketAddedProfile(rows.data(), nullptr), -1);
    EXPECT_EQ(PDECommon::commonSetTicketAddedProfile(rows.data(), nullptr, 1), -1);
    for (const auto &flag : {bv::PrintValue("true"), bv::PrintValue::boolean(true)}) {
        ticket.putInQueue("BVSrcCustom", flag);
        ticket.putInQueue("BVSrc", bv::PrintValue("Wide"));
        restore();
        EXPECT_EQ(rgb.currentIndex(), 3) << "only the text True names a profile";
    }
}

TEST(DevicePath, IsEncodedHalfByteByHalfByte)
{
    ProfileRecord record{};
    record.Location = kLocationDisk;
    bv::setFieldText(record.FileName, "a.icc");
    const std::string path = bv::devicePath(record);
    EXPECT_EQ(path, "/ata1a/data/USfiles/Profiles/a.icc");
    const std::string text = bv::encodeDevicePath(path);
    EXPECT_EQ(text.size(), 68U);
    EXPECT_EQ(text.substr(0, 8), "2?617461");
    EXPECT_EQ(bv::decodeDevicePath(text), path);
    EXPECT_EQ(bv::encodeDevicePath("\xFF\x0A"), "??0:");
    EXPECT_EQ(bv::decodeDevicePath("41"), "A");
    EXPECT_EQ(bv::decodeDevicePath("414"), std::string("A\x10", 2));

    std::memset(record.FileName, 'x', sizeof record.FileName); // all 32 bytes, as a walk may leave it
    EXPECT_EQ(bv::devicePath(record).size(), 29U + 32U);
}

} // namespace
