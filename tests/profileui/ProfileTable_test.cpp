// SPDX-License-Identifier: GPL-2.0-or-later
// The window's table and controls as used by hand, by screen readers and by scripts.
#include "profileui/IconedCell.h"
#include "profileui/ProfileTableView.h"
#include "profileui/ProfileWindowFixture.h"
#include "support/MarkupProbe.h"

#include <QAccessible>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>

namespace bvtest {
namespace {

// Picks a file in the next file panel; an empty path cancels it. Stores the panel's folder in *folder.
void answerFilePanel(QObject *context, const QString &path, QString *folder = nullptr)
{
    QTimer::singleShot(0, context, [=] {
        auto *panel = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(panel);
        if (folder)
            *folder = panel->directory().canonicalPath();
        panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(panel, path.isEmpty() ? "reject" : "accept", Qt::QueuedConnection);
    });
}

TEST_F(ProfileWindow, ABrowsedNameIsTakenWholeOrNotAtAll)
{
    const QString folder = QString::fromStdString(bv::mapRootPath("/Library/Printers/BREVANE/QL70/Profiles"));
    ASSERT_TRUE(QDir().mkpath(folder));
    struct Row
    {
        const char *name;
        bool taken;
    };
    const Row rows[] = {
        {"sRGB.icc", true},
        {"abcdefghijklmnopqrstuvwxyz12345", true}, // 31 units without a dot: more than could be typed
        {"long.extension", true},                  // only the number of dots counts
        {"a.b.icc", false},
        {"caf\xC3\xA9.icc", false},
        {".icc", true},
    };
    for (const Row &row : rows) {
        QFile file(folder + u'/' + QString::fromUtf8(row.name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    inWindow([&] {
        press(c()._addButton);
        for (const Row &row : rows) {
            SCOPED_TRACE(row.name);
            type(c()._fileNameEdit, QStringLiteral("x"));
            QString startedIn;
            answerFilePanel(window, folder + u'/' + QString::fromUtf8(row.name), &startedIn);
            press(c()._browse);
            EXPECT_EQ(startedIn, QFileInfo(folder).canonicalFilePath());
            EXPECT_EQ(c()._fileNameEdit->text(), row.taken ? QString::fromUtf8(row.name) : QString());
            EXPECT_EQ(c()._localOK->isEnabled(), row.taken);
        }
        // The last one is shown but not taken into the list.
        key(Qt::Key_Return);
        EXPECT_EQ(table()->model()->rowCount(), 0);
        // A refused change restores the browsed name. A cancelled panel changes nothing.
        answerFilePanel(window, folder + QStringLiteral("/sRGB.icc"));
        press(c()._browse);
        c()._fileNameEdit->setFocus();
        type(c()._fileNameEdit, QStringLiteral("c"));
        EXPECT_EQ(c()._fileNameEdit->text(), QStringLiteral("sRGB.icc"));
        answerFilePanel(window, {});
        press(c()._browse);
        EXPECT_EQ(c()._fileNameEdit->text(), QStringLiteral("sRGB.icc"));
    });
}

// The name that a screen reader speaks. A pop-up menu's own name is its text, so its label is used.
QString spokenName(QWidget *control)
{
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(control);
    if (!spoken)
        return {};
    if (spoken->role() != QAccessible::ComboBox)
        return spoken->text(QAccessible::Name);
    const auto labels = spoken->relations(QAccessible::Label);
    return labels.isEmpty() ? QString() : labels.first().first->text(QAccessible::Name);
}

TEST_F(ProfileWindow, ACheckMarkTakesAnyValueThatMeansTrueOrFalse)
{
    append(lists->rgb, 7, "odd.icc", "Odd");
    bv::ProfileTableModel model;
    model.setList([this] { return &lists->rgb; }, true);
    const auto set = [&](int row, const QVariant &value) {
        return model.setData(model.index(row, bv::ProfileTableModel::kInMenu), value, Qt::CheckStateRole);
    };
    for (const QVariant &on : {QVariant(1), QVariant(true), QVariant(Qt::Checked), QVariant(QStringLiteral("true"))}) {
        for (const QVariant &off : {QVariant(0), QVariant(false), QVariant(Qt::Unchecked)}) {
            for (int row = 0; row < 6; ++row)
                EXPECT_TRUE(set(row, on));
            EXPECT_EQ(summary(lists->rgb).remove(QStringLiteral(".icc")),
                      QStringLiteral("one:3:4 two:4:5 three:3:4 four:4:4 five:6:7 six:6:5 odd:7:4"));
            for (int row = 0; row < 6; ++row)
                EXPECT_TRUE(set(row, off));
            EXPECT_EQ(lists->rgb.records[3].InMenu, 2);
        }
    }
    EXPECT_FALSE(set(6, true)) << "a code without another menu state stays";
    EXPECT_EQ(lists->rgb.records[6].InMenu, 7);
}

TEST_F(ProfileWindow, TableAndButtonsWorkOnTheListThatTheClassMenuNamesNow)
{
    writeFile();
    inWindow([&] {
        clickRow(3);
        c()._profileMenu->setCurrentIndex(kProfileSIM); // by code: nothing is reloaded
        EXPECT_EQ(table()->model()->rowCount(), 1);
        EXPECT_EQ(cell(0, 1), QStringLiteral("sim.icc"));
        press(c()._deleteButton); // this list has no row 3
        press(c()._editButton);
        EXPECT_TRUE(table()->model()->setData(table()->model()->index(0, bv::ProfileTableModel::kInMenu), false,
                                              Qt::CheckStateRole));
        press(c()._windowOK);
    });
    const auto file = readFile();
    EXPECT_EQ(summary(file->rgb), summary(lists->rgb));
    EXPECT_EQ(summary(file->sim), QStringLiteral("sim.icc:2:4"));
}

TEST_F(ProfileWindow, TheTabKeyReachesEveryControlInOrderAndEachHasAName)
{
    writeFile();
    QStringList reached;
    inWindow([&] {
        const auto round = [&](QWidget *from) {
            QStringList names;
            from->setFocus();
            do {
                QWidget *control = window->focusWidget();
                names += control->objectName();
                EXPECT_FALSE(spokenName(control).isEmpty()) << control->objectName().toStdString();
                key(Qt::Key_Tab);
            } while (window->focusWidget() != from && names.size() < 20);
            reached.append(names.join(u' '));
        };
        clickRow(5);
        round(c()._profileMenu);
        press(c()._editButton);
        round(c()._profileTableView);
        // And back.
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(window->focusWidget(), c()._windowCancel);
    });
    ASSERT_EQ(reached.size(), 2);
    EXPECT_EQ(reached[0],
              QStringLiteral("_profileMenu _profileTableView _addButton _editButton _deleteButton _windowOK "
                             "_windowCancel"));
    EXPECT_EQ(reached[1], QStringLiteral("_profileTableView _fileNameEdit _browse _profileNameEdit _locationMenu "
                                         "_localOK _localCancel _windowOK _windowCancel"));
}

TEST_F(ProfileWindow, GreyedControlsAndAnOpenEntryExplainThemselves)
{
    writeFile();
    inWindow([&] {
        const auto explains = [this](const char *step) {
            SCOPED_TRACE(step);
            for (QWidget *control : std::initializer_list<QWidget *>{
                     c()._profileMenu, c()._addButton, c()._editButton, c()._deleteButton, c()._fileNameEdit,
                     c()._browse, c()._profileNameEdit, c()._locationMenu, c()._localOK, c()._localCancel})
                EXPECT_EQ(control->toolTip().isEmpty(), control->isEnabled())
                    << control->objectName().toStdString() << ": " << control->toolTip().toStdString();
            EXPECT_EQ(c()._windowOK->accessibleDescription().isEmpty(), c()._profileMenu->isEnabled());
        };
        const auto title = [this] { return c().editArea->title().toStdString(); };
        explains("idle");
        clickRow(1);
        explains("a profile on the printer");
        EXPECT_TRUE(c()._deleteButton->toolTip().contains("on the printer"));
        press(c()._editButton);
        explains("editing it");
        EXPECT_EQ(title(), "Entry, not confirmed yet");
        key(Qt::Key_Escape);
        explains("given up");
        EXPECT_EQ(title(), "Entry, discarded");
        add(QStringLiteral("one.icc"), QStringLiteral("Again"));
        explains("adding");
        EXPECT_EQ(title(), "Entry: this file is in the list already");
        key(Qt::Key_End); // the other place
        EXPECT_EQ(title(), "Entry, not confirmed yet");
        type(c()._fileNameEdit, QStringLiteral("x.y.z"));
        c()._fileNameEdit->clear();
        explains("no file name");
        press(c()._localCancel);
        clickRow(3);
        EXPECT_EQ(title(), "Entry");
        EXPECT_EQ(cell(3, bv::ProfileTableModel::kLocation, Qt::ToolTipRole).toString(),
                  "Four\nfour.icc, Disk\nThe printer reported this profile when it was last asked");
    });
}

TEST_F(ProfileWindow, TheProfileNamesGetTheSpareWidthAndASmallWindowScrolls)
{
    writeFile();
    inWindow([&] {
        window->resize(900, 600);
        QCoreApplication::processEvents();
        const QHeaderView *header = table()->horizontalHeader();
        EXPECT_EQ(header->length(), table()->viewport()->width());
        EXPECT_GT(table()->columnWidth(bv::ProfileTableModel::kProfileName), 400);
        window->resize(660, 340); // 1024 by 600 at 150 %
        QCoreApplication::processEvents();
        EXPECT_EQ(window->height(), 340);
        for (QWidget *control : std::initializer_list<QWidget *>{c()._windowOK, c()._windowCancel})
            EXPECT_TRUE(window->rect().contains(control->geometry()));
        const auto inSight = [&] {
            return c()._fileNameEdit->visibleRegion().boundingRect() == c()._fileNameEdit->rect();
        };
        press(c()._addButton);
        EXPECT_TRUE(QTest::qWaitFor(inSight)) << "the focus scrolled into view";
    });
}

TEST_F(ProfileWindow, MarkupInANameIsShownLetterByLetter)
{
    append(lists->rgb, 3, "odd.icc", kMarkup);
    writeFile();
    inWindow([&] {
        const QAbstractItemModel *model = c()._profileTableView->model();
        EXPECT_EQ(model->index(model->rowCount() - 1, 2).data().toString(), kMarkup);
        EXPECT_EQ(imagesShown(window), QStringList());
    });
}

TEST_F(ProfileWindow, EveryCellAndColumnCanBeSpoken)
{
    writeFile();
    inWindow([&] {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(table());
        ASSERT_TRUE(spoken && spoken->tableInterface());
        const char *fourth[] = {"On the printer", "four.icc", "Four", "Disk", "Shown in the menus"};
        for (int column = 0; column < 5; ++column) {
            EXPECT_EQ(spoken->tableInterface()->cellAt(3, column)->text(QAccessible::Name).toStdString(),
                      fourth[column]);
            EXPECT_FALSE(
                table()->model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString().isEmpty());
        }
        EXPECT_EQ(spoken->tableInterface()->cellAt(0, 4)->text(QAccessible::Name),
                  QStringLiteral("Not shown in the menus"));
    });
}

TEST_F(ProfileWindow, TheArrowKeysReachTheFirstRowFromNoSelection)
{
    writeFile();
    for (const Qt::Key first : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home}) {
        inWindow([&] {
            table()->setFocus();
            key(first);
            EXPECT_EQ(table()->selectedRow(), 0);
            key(Qt::Key_Down);
            EXPECT_EQ(table()->selectedRow(), 1);
            key(Qt::Key_End);
            EXPECT_EQ(table()->selectedRow(), 5);
        });
    }
}

TEST_F(ProfileWindow, TypingALetterAgainWalksThroughTheRowsThatBeginWithIt)
{
    writeFile();
    inWindow([&] {
        table()->setFocus();
        for (const int row : {1, 2, 1}) { // two, three, two
            type(table(), QStringLiteral("t"));
            EXPECT_EQ(table()->selectedRow(), row);
        }
        type(table(), QStringLiteral("h")); // no name begins with "ttth"
        EXPECT_EQ(table()->selectedRow(), 1);
        table()->model()->setData(table()->model()->index(0, bv::ProfileTableModel::kInMenu), Qt::Unchecked,
                                  Qt::CheckStateRole);
        EXPECT_EQ(cell(0, bv::ProfileTableModel::kInMenu, Qt::CheckStateRole), Qt::Unchecked) << "set as it was";
    });
}

TEST(IconedCell, DrawsTheIcon3PointsFromTheLeftAtTheTopOverWhatIsThere)
{
    QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
    icon.fill(QColor(255, 0, 0, 128));
    QImage canvas(40, 30, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    IconedCell::drawInteriorWithFrame(&painter, QRect(5, 4, 30, 24), icon);
    IconedCell::drawInteriorWithFrame(&painter, QRect(5, 4, 30, 24), QImage());
    painter.end();
    QRect drawn;
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            if (canvas.pixelColor(x, y) != QColor(Qt::white))
                drawn |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_EQ(drawn, QRect(8, 4, 16, 16));
    EXPECT_NEAR(canvas.pixelColor(16, 12).green(), 127, 2); // half transparent red over white
}

} // namespace
} // namespace bvtest
