// SPDX-License-Identifier: GPL-2.0-or-later
// Fixture: a separate root with the real helper and a list file, and the management window driven by keys and mouse.
#pragma once

#include "profileui/ManagementWindow.h"
#include "profileui/ProfileControl.h"
#include "profileui/ProfileTableModel.h"
#include "platform/HostProtocol.h"
#include "platform/RootPath.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"
#include "support/ListRoot.h"
#include "support/PaneFixture.h"
#include "support/SampleLists.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace bvtest {

inline QString fileNameOf(const ProfileRecord &record)
{
    return QString::fromStdString(std::string(bv::fieldText(record.FileName)));
}

inline QString profileNameOf(const ProfileRecord &record)
{
    return QString::fromStdString(std::string(bv::fieldText(record.ProfileName)));
}

inline void append(ProfileList &list, int32_t inMenu, std::string_view fileName, std::string_view profileName,
                   int32_t location = kLocationDisk)
{
    add(list, makeRecord(inMenu, fileName, location, list.count + (inMenu <= 4 ? 1 : 500), profileName));
}

// The list as "NAME:CODE:LOCATION" words.
inline QString summary(const ProfileList &list)
{
    QStringList words;
    for (int row = 0; row < list.count; ++row) {
        const ProfileRecord &record = list.records[row];
        words += QStringLiteral("%1:%2:%3").arg(fileNameOf(record)).arg(record.InMenu).arg(record.Location);
    }
    return words.join(u' ');
}

class ProfileWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        // RGB has one profile of each code that a file can hold; codes 2 and 4 are on the printer.
        append(lists->rgb, 1, "one.icc", "One");
        append(lists->rgb, 2, "two.icc", "Two", kLocationCard);
        append(lists->rgb, 3, "three.icc", "Three");
        append(lists->rgb, 4, "four.icc", "Four");
        append(lists->rgb, 5, "five.icc", "Five", 7);
        append(lists->rgb, 6, "six.icc", "Six", kLocationCard);
        append(lists->sim, 4, "sim.icc", "Simulated");
        append(lists->dst, 3, "dst.icc", "Destination");
        useUri("lpd://192.0.2.1/lp");
        control.setPMPrint(&ticket, &session);
    }

    void useUri(const char *uri) { session.uri = QString::fromLatin1(uri); }
    static QString helperFile() { return QString::fromStdString(bv::mapRootPath(kHelperPath)); }
    void writeFile() { ASSERT_EQ(BVPListWriteProfile_All(&lists->rgb, &lists->sim, &lists->dst), 0); }
    static std::string fileBytes() { return TestRoot::readFile(TestRoot::listFile()); }
    static std::unique_ptr<Lists> readFile()
    {
        auto read = std::make_unique<Lists>();
        EXPECT_EQ(BVPListReadProfile_All(&read->rgb, &read->sim, &read->dst), 0);
        return read;
    }

    // Opens the window, runs the steps, and closes the window if they have not.
    void inWindow(const std::function<void()> &steps)
    {
        bool ran = false;
        QTimer::singleShot(0, &control, [&] {
            window = qobject_cast<bv::ManagementWindow *>(QApplication::activeModalWidget());
            if (window && QTest::qWaitForWindowActive(window)) {
                steps();
                ran = true;
            }
            if (window && window->isVisible())
                window->reject();
        });
        control.showProfileManagementWindow();
        EXPECT_TRUE(ran);
    }

    const Ui::ProfileManagement &c() const { return window->controls; }
    bv::ProfileTableView *table() const { return c()._profileTableView; }
    static void press(QPushButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    // Sends a key to the widget that has the focus.
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, which, modifiers);
    }
    void type(QWidget *field, const QString &text)
    {
        for (const QChar unit : text)
            QTest::keyClick(field, unit.toLatin1());
    }
    void clickCell(int row, int column)
    {
        const QModelIndex cell = table()->model()->index(row, column);
        table()->scrollTo(cell);
        const QRect rect = table()->visualRect(cell);
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, {rect.left() + 10, rect.center().y()});
    }
    void clickRow(int row) { clickCell(row, bv::ProfileTableModel::kFileName); }
    QVariant cell(int row, int column, int role = Qt::DisplayRole) const
    {
        return table()->model()->index(row, column).data(role);
    }
    // Adds an entry with the keyboard. The focus may be anywhere.
    void add(const QString &fileName, const QString &profileName, bool onCard = false)
    {
        press(c()._addButton);
        type(c()._fileNameEdit, fileName);
        type(c()._profileNameEdit, profileName);
        c()._locationMenu->setFocus();
        key(onCard ? Qt::Key_End : Qt::Key_Home);
    }
    // The names of the enabled buttons, fields and menus.
    QStringList enabledControls() const
    {
        QStringList names;
        for (const QWidget *control : std::initializer_list<const QWidget *>{
                 c()._profileMenu, c()._addButton, c()._editButton, c()._deleteButton, c()._fileNameEdit, c()._browse,
                 c()._profileNameEdit, c()._locationMenu, c()._localOK, c()._localCancel}) {
            if (control->isEnabled())
                names += control->objectName().mid(1);
        }
        return names;
    }

    const ListRoot root;
    std::unique_ptr<Lists> lists = std::make_unique<Lists>();
    TestTicket ticket;
    TestSession session;
    ProfileControl control;
    QPointer<bv::ManagementWindow> window;
};

} // namespace bvtest
