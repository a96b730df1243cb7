// SPDX-License-Identifier: GPL-2.0-or-later
// Adding, editing and deleting in the management window, and the file that its OK writes.
#include "profileui/ProfileWindowFixture.h"

namespace bvtest {
namespace {

const QStringList kIdleControls = {QStringLiteral("profileMenu"), QStringLiteral("addButton")};

TEST_F(ProfileWindow, OpensWithTheStoredListAndNothingSelected)
{
    writeFile();
    inWindow([&] {
        EXPECT_EQ(enabledControls(), kIdleControls);
        EXPECT_EQ(table()->selectedRow(), -1);
        ASSERT_EQ(table()->model()->rowCount(), 6);
        const char *fileNames[] = {"one.icc", "two.icc", "three.icc", "four.icc", "five.icc", "six.icc"};
        const char *locations[] = {"Disk", "Card", "Disk", "Disk", "", "Card"};
        const bool onPrinter[] = {false, true, false, true, false, false};
        const bool inMenu[] = {false, false, true, true, false, true};
        for (int row = 0; row < 6; ++row) {
            SCOPED_TRACE(row);
            EXPECT_EQ(cell(row, 1), QString::fromLatin1(fileNames[row]));
            EXPECT_EQ(cell(row, 3), QString::fromLatin1(locations[row]));
            // The image file is missing here, but the cell still reports the icon.
            EXPECT_EQ(cell(row, 0, bv::kIconShownRole).toBool(), onPrinter[row]);
            EXPECT_EQ(cell(row, 4, Qt::CheckStateRole) == Qt::Checked, inMenu[row]);
        }
    });
}

TEST_F(ProfileWindow, ALocalQueueShowsNoIconsNoUnlistedPrinterProfilesAndOwnsTheOthers)
{
    writeFile();
    for (const char *uri : {"usb://BREVANE/QL70", "pap://zone/ql70"}) {
        useUri(uri);
        inWindow([&] {
            ASSERT_EQ(table()->model()->rowCount(), 5);
            for (int row = 0; row < 5; ++row)
                EXPECT_FALSE(cell(row, 0, bv::kIconShownRole).toBool());
            // A printer's profile that is in the menus counts as the user's.
            clickRow(2);
            EXPECT_EQ(cell(2, 1), QStringLiteral("four.icc"));
            EXPECT_TRUE(c()._deleteButton->isEnabled());
        });
    }
    useUri("ipp://192.0.2.1/print");
    inWindow([&] { EXPECT_EQ(table()->model()->rowCount(), 6); });
}

TEST_F(ProfileWindow, SelectingARowShowsItAndEnablesItsPossibleActions)
{
    writeFile();
    inWindow([&] {
        const bool deletable[] = {true, false, true, false, true, true};
        for (int row = 0; row < 6; ++row) {
            SCOPED_TRACE(row);
            const int before = c()._locationMenu->currentIndex();
            clickRow(row);
            EXPECT_EQ(table()->selectedRow(), row);
            EXPECT_EQ(c()._fileNameEdit->text(), cell(row, 1).toString());
            EXPECT_EQ(c()._profileNameEdit->text(), cell(row, 2).toString());
            const int32_t location = lists->rgb.records[row].Location;
            // An unknown location leaves the menu unchanged.
            EXPECT_EQ(c()._locationMenu->currentIndex(), location == 4 ? 0 : location == 5 ? 1 : before);
            EXPECT_EQ(c()._deleteButton->isEnabled(), deletable[row]);
            EXPECT_EQ(c()._deleteButton->accessibleDescription().isEmpty(), deletable[row]);
            EXPECT_TRUE(c()._editButton->isEnabled() && c()._addButton->isEnabled());
            EXPECT_FALSE(c()._fileNameEdit->isEnabled() || c()._localOK->isEnabled());
            EXPECT_EQ(control.isCustomProfile(), row < 4);
        }
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                          {5, table()->viewport()->height() - 3}); // below the last row
        EXPECT_EQ(table()->selectedRow(), -1);
        EXPECT_EQ(enabledControls(), kIdleControls);
        EXPECT_EQ(c()._fileNameEdit->text() + c()._profileNameEdit->text(), QString());
    });
}

TEST_F(ProfileWindow, TheClassMenuChangesTheList)
{
    writeFile();
    inWindow([&] {
        clickRow(0);
        c()._profileMenu->setFocus();
        key(Qt::Key_Down);
        EXPECT_EQ(cell(0, 1), QStringLiteral("sim.icc"));
        EXPECT_EQ(table()->selectedRow(), -1);
        EXPECT_EQ(enabledControls(), kIdleControls);
        key(Qt::Key_Down);
        EXPECT_EQ(cell(0, 1), QStringLiteral("dst.icc"));
        add(QStringLiteral("new.icc"), QStringLiteral("New"));
        press(c()._localOK);
        add(QStringLiteral("half.icc"), QStringLiteral("Half"));
        press(c()._windowOK); // saves nothing that was not confirmed
    });
    const auto file = readFile();
    EXPECT_EQ(summary(file->dst), QStringLiteral("dst.icc:3:4 new.icc:6:4"));
    EXPECT_EQ(summary(file->rgb), summary(lists->rgb));
    EXPECT_EQ(summary(file->sim), summary(lists->sim));
}

TEST_F(ProfileWindow, AnEntryIsAddedWithTheKeyboardAlone)
{
    lists->rgb.count = 3;
    for (int slot = 3; slot < 6; ++slot)
        lists->rgb.records[slot] = {};
    writeFile();
    inWindow([&] {
        clickRow(1);
        c()._addButton->setFocus();
        key(Qt::Key_Space);
        EXPECT_EQ(enabledControls().join(u' '),
                  QStringLiteral("fileNameEdit browse profileNameEdit locationMenu localCancel"));
        EXPECT_EQ(c()._fileNameEdit->text() + c()._profileNameEdit->text(), QString());
        // Nothing can change the selection now.
        clickRow(2);
        table()->selectRow(0);
        table()->clearSelection();
        EXPECT_EQ(table()->selectedRow(), 1);

        c()._fileNameEdit->setFocus();
        type(window->focusWidget(), QStringLiteral("n:e w.icc"));
        key(Qt::Key_Tab); // to Browse
        key(Qt::Key_Tab);
        type(window->focusWidget(), QStringLiteral("My Profile"));
        key(Qt::Key_Tab);
        key(Qt::Key_Down);
        EXPECT_TRUE(c()._localOK->isEnabled());
        key(Qt::Key_Return);
        EXPECT_EQ(enabledControls(), kIdleControls);
        EXPECT_EQ(table()->selectedRow(), -1);
        EXPECT_EQ(table(), window->focusWidget());
        key(Qt::Key_Return);
        EXPECT_FALSE(window->isVisible());
    });
    const auto file = readFile();
    ASSERT_EQ(file->rgb.count, 4);
    const ProfileRecord &added = file->rgb.records[3];
    EXPECT_EQ(fileNameOf(added), QStringLiteral("new.icc"));
    EXPECT_EQ(profileNameOf(added), QStringLiteral("My Profile"));
    EXPECT_EQ(added.IndexOnDevice, 503);
    EXPECT_EQ(added.InMenu, 6);
    EXPECT_EQ(added.ProfileClass, 2);
    EXPECT_EQ(added.Location, kLocationCard);
}

TEST_F(ProfileWindow, RefusalsAreSilentAndLeaveEverythingAsItWas)
{
    struct Row
    {
        const char *name;
        const char *fileName;
        bool onCard;
        bool taken;
    };
    writeFile();
    inWindow([&] {
        for (const Row &row :
             {Row{"nothing", "", false, false}, Row{"dot first", ".icc", false, false},
              Row{"same name, same storage", "one.icc", false, false},
              Row{"same name, other storage", "one.icc", true, true}, Row{"other case", "ONE.icc", false, true}}) {
            SCOPED_TRACE(row.name);
            const int rows = table()->model()->rowCount();
            add(QString::fromLatin1(row.fileName), QStringLiteral("P"), row.onCard);
            key(Qt::Key_Return);
            EXPECT_EQ(table()->model()->rowCount(), rows + (row.taken ? 1 : 0));
            EXPECT_EQ(QApplication::activeModalWidget(), window);
            if (!row.taken) {
                EXPECT_EQ(c()._fileNameEdit->text(), QString::fromLatin1(row.fileName));
                key(Qt::Key_Escape);
            }
            EXPECT_EQ(enabledControls(), kIdleControls);
        }
    });
}

TEST_F(ProfileWindow, OnlyTheNameOfAPrintersProfileCanBeChanged)
{
    writeFile();
    inWindow([&] {
        for (const int row : {0, 1, 2, 3}) {
            clickRow(row);
            press(c()._editButton);
            EXPECT_EQ(enabledControls().join(u' '), QStringLiteral("profileNameEdit localOK localCancel"));
            EXPECT_EQ(window->focusWidget(), c()._profileNameEdit);
            type(c()._profileNameEdit, QStringLiteral("!"));
            press(c()._localOK);
        }
        press(c()._windowOK);
    });
    const auto file = readFile();
    EXPECT_EQ(summary(file->rgb), summary(lists->rgb));
    EXPECT_EQ(profileNameOf(file->rgb.records[1]), QStringLiteral("Two!"));
    EXPECT_EQ(file->rgb.records[1].IndexOnDevice, 2);
}

TEST_F(ProfileWindow, EveryFieldOfAUsersEntryCanBeChanged)
{
    writeFile();
    inWindow([&] {
        clickRow(5);
        press(c()._editButton);
        EXPECT_EQ(enabledControls().join(u' '),
                  QStringLiteral("fileNameEdit browse profileNameEdit locationMenu localOK localCancel"));
        // Its own name and location may stay; those of another row are refused.
        key(Qt::Key_Return);
        EXPECT_EQ(enabledControls(), kIdleControls);
        clickRow(5);
        press(c()._editButton);
        c()._fileNameEdit->selectAll();
        type(c()._fileNameEdit, QStringLiteral("two.icc"));
        key(Qt::Key_Return);
        EXPECT_TRUE(c()._localOK->isEnabled());
        c()._locationMenu->setFocus();
        key(Qt::Key_Up);
        key(Qt::Key_Return);
        EXPECT_EQ(cell(5, 3), QStringLiteral("Disk"));
        press(c()._windowOK);
    });
    const auto file = readFile();
    EXPECT_EQ(summary(file->rgb),
              QStringLiteral("one.icc:1:4 two.icc:2:5 three.icc:3:4 four.icc:4:4 five.icc:5:7 two.icc:6:4"));
    EXPECT_EQ(file->rgb.records[5].IndexOnDevice, 505);
}

TEST_F(ProfileWindow, ALocalQueuesChangesAreMergedIntoTheCurrentFile)
{
    writeFile();
    useUri("usb://BREVANE/QL70");
    inWindow([&] {
        // Shown: one 1, three 3, four 6, five 5, six 6.
        clickRow(2);
        press(c()._deleteButton);
        clickRow(3);
        press(c()._editButton);
        c()._fileNameEdit->selectAll();
        type(c()._fileNameEdit, QStringLiteral("seven.icc"));
        press(c()._localOK);
        c()._profileMenu->setFocus();
        key(Qt::Key_Down);
        clickRow(0);
        press(c()._deleteButton);
        // Meanwhile another dialog writes the file: a new profile of the printer, and one of the user's.
        append(lists->rgb, 2, "late.icc", "Late");
        append(lists->rgb, 6, "other.icc", "Other");
        writeFile();
        press(c()._windowOK);
    });
    // The file's printer profiles that were neither shown nor deleted come first. The deleted one is gone.
    EXPECT_EQ(summary(readFile()->rgb),
              QStringLiteral("two.icc:2:5 late.icc:2:4 one.icc:1:4 three.icc:3:4 five.icc:5:7 seven.icc:6:5"));
    EXPECT_EQ(readFile()->sim.count, 0);
}

TEST_F(ProfileWindow, CheckMarksFollowMouseAndSpaceBar)
{
    writeFile();
    inWindow([&] {
        clickCell(0, bv::ProfileTableModel::kInMenu);
        clickCell(1, bv::ProfileTableModel::kInMenu);
        table()->setFocus();
        for (const int row : {2, 3, 4, 5}) {
            table()->selectRow(row);
            key(Qt::Key_Space);
        }
        // Also works while an entry is being added. Two clicks restore the mark.
        press(c()._addButton);
        clickCell(4, bv::ProfileTableModel::kInMenu);
        clickCell(4, bv::ProfileTableModel::kInMenu);
        EXPECT_EQ(table()->selectedRow(), 5);
        press(c()._localCancel);
        press(c()._windowOK);
    });
    EXPECT_EQ(summary(readFile()->rgb),
              QStringLiteral("one.icc:3:4 two.icc:4:5 three.icc:1:4 four.icc:2:4 five.icc:6:7 six.icc:5:5"));
}

TEST_F(ProfileWindow, CancelEscapeAndClosingWriteNothing)
{
    writeFile();
    const std::string before = fileBytes();
    const std::function<void()> ways[] = {[&] { press(c()._windowCancel); }, [&] { key(Qt::Key_Escape); },
                                          [&] { window->close(); }};
    for (const auto &way : ways) {
        inWindow([&] {
            clickRow(0);
            press(c()._deleteButton);
            way();
            EXPECT_FALSE(window->isVisible());
        });
        EXPECT_EQ(fileBytes(), before);
    }
}

TEST_F(ProfileWindow, ReopensInTheIdleStateAfterClosingInAnyState)
{
    useUri("usb://BREVANE/QL70");
    writeFile();
    inWindow([&] {
        c()._profileMenu->setFocus();
        key(Qt::Key_Down);
        clickRow(0);
        press(c()._deleteButton);
        add(QStringLiteral("half.icc"), QStringLiteral("Half"));
        window->close();
    });
    // Closing took back the deletion of this profile. It is removed from the file, and added again while the window is
    // open. It then counts as a new profile of the printer.
    lists->sim = {};
    writeFile();
    inWindow([&] {
        EXPECT_EQ(enabledControls(), kIdleControls);
        EXPECT_EQ(c()._profileMenu->currentIndex(), 0);
        EXPECT_EQ(cell(0, 1), QStringLiteral("one.icc"));
        EXPECT_EQ(c()._fileNameEdit->text() + c()._profileNameEdit->text(), QString());
        EXPECT_EQ(c()._locationMenu->count(), 2);
        EXPECT_TRUE(c()._windowOK->isDefault());
        append(lists->sim, 4, "sim.icc", "Simulated");
        writeFile();
        press(c()._windowOK);
    });
    EXPECT_EQ(summary(readFile()->sim), QStringLiteral("sim.icc:4:4"));
}

TEST_F(ProfileWindow, ReturnAndEscapeBelongToTheEntryWhileItIsMade)
{
    writeFile();
    inWindow([&] {
        press(c()._addButton);
        key(Qt::Key_Return); // the entry's OK is not enabled yet
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(c()._localCancel->isEnabled());
        key(Qt::Key_Escape);
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(enabledControls(), kIdleControls);
        EXPECT_TRUE(c()._windowOK->isDefault());
    });
}

TEST_F(ProfileWindow, WithoutAFileTheListsAreEmptyAndOkMakesOne)
{
    inWindow([&] {
        EXPECT_EQ(table()->model()->rowCount(), 0);
        table()->setFocus();
        for (const Qt::Key which : {Qt::Key_Space, Qt::Key_Down, Qt::Key_A})
            key(which);
        EXPECT_EQ(enabledControls(), kIdleControls);
        add(QStringLiteral("first"), {});
        key(Qt::Key_Return);
        press(c()._windowOK);
    });
    EXPECT_EQ(summary(readFile()->rgb), QStringLiteral("first:6:4"));
}

TEST_F(ProfileWindow, AFullListRefusesAnEntryButAllowsDeleting)
{
    while (lists->rgb.count < kProfileSlots)
        append(lists->rgb, 6, "p" + std::to_string(lists->rgb.count) + ".icc", "Filler");
    writeFile();
    inWindow([&] {
        EXPECT_EQ(table()->model()->rowCount(), 500);
        add(QStringLiteral("more.icc"), {});
        key(Qt::Key_Return);
        EXPECT_TRUE(c()._localOK->isEnabled());
        key(Qt::Key_Escape);
        table()->setFocus();
        type(table(), QStringLiteral("p499"));
        EXPECT_EQ(table()->selectedRow(), 499);
        press(c()._deleteButton);
        EXPECT_EQ(table()->model()->rowCount(), 499);
        add(QStringLiteral("more.icc"), {});
        key(Qt::Key_Return);
        press(c()._windowOK);
    });
    const auto file = readFile();
    EXPECT_EQ(file->rgb.count, 500);
    EXPECT_EQ(fileNameOf(file->rgb.records[499]), QStringLiteral("more.icc"));
    EXPECT_EQ(file->rgb.records[499].IndexOnDevice, 999);
}

TEST_F(ProfileWindow, NamesAtTheLimitsAndOfAnyScriptAreShownAndKept)
{
    lists->rgb = {};
    const std::string names[] = {
        std::string(31, 'x'),               // the whole field
        "\xD8\xA7\xD9\x84\xE2\x80\xAE.icc", // bidirectional
        "e\xCC\x81.icc",                    // combining
        "\xF0\x9F\x98\x80.icc",             // beyond the BMP
    };
    for (const std::string &name : names)
        append(lists->rgb, 6, name, name);
    writeFile();
    inWindow([&] {
        for (int row = 0; row < 4; ++row) {
            SCOPED_TRACE(row);
            clickRow(row);
            EXPECT_EQ(c()._fileNameEdit->text().toStdString(), names[row]);
            press(c()._editButton);
            // The field leaves a text from the list unchanged until the user edits it.
            key(Qt::Key_Return);
        }
        press(c()._windowOK);
    });
    const auto file = readFile();
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(fileNameOf(file->rgb.records[row]).toStdString(), names[row]);
        EXPECT_EQ(profileNameOf(file->rgb.records[row]).toStdString(), names[row]);
    }
}

} // namespace
} // namespace bvtest
