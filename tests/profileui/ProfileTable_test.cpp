// The window's table and controls as hands, screen readers and scripts meet them.
#include "profileui/IconedCell.h"
#include "profileui/ProfileTableView.h"
#include "profileui/ProfileWindowFixture.h"

#include <QAccessible>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>

namespace bvtest {
namespace {

// Picks a file in the panel that the window opens next; an empty path cancels it. Tells the panel's folder.
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
        {"abcdefghijklmnopqrstuvwxyz123456", false},
        {"long.extension", true}, // only the number of dots counts
        {"a.b.icc", false},
        {"my profile.icc", false},
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
        // A refused change goes back to the browsed name; a cancelled panel changes nothing.
        answerFilePanel(window, folder + QStringLiteral("/sRGB.icc"));
        press(c()._browse);
        c()._fileNameEdit->setFocus();
        type(c()._fileNameEdit, QStringLiteral("c"));
        EXPECT_EQ(c()._fileNameEdit->text(), QStringLiteral("sRGB.icc"));
        answerFilePanel(window, {});
        press(c()._browse);
        EXPECT_EQ(c()._fileNameEdit->text(), QStringLiteral("sRGB.icc"));
        EXPECT_TRUE(c()._localOK->isEnabled());
    });
}

// How a screen reader calls a control. A pop-up menu's own name is its text here, and its label counts.
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

TEST_F(ProfileWindow, TypingFindsRowsByTheirFileNames)
{
    writeFile();
    inWindow([&] {
        table()->setFocus();
        type(table(), QStringLiteral("T"));
        EXPECT_EQ(table()->selectedRow(), 1);
        EXPECT_EQ(c()._fileNameEdit->text(), QStringLiteral("two.icc"));
        type(table(), QStringLiteral("t"));
        EXPECT_EQ(table()->selectedRow(), 2);
        type(table(), QStringLiteral("t"));
        EXPECT_EQ(table()->selectedRow(), 1);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        type(table(), QStringLiteral("thr"));
        EXPECT_EQ(table()->selectedRow(), 2);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        type(table(), QStringLiteral("nobody"));
        EXPECT_EQ(table()->selectedRow(), 2);
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

TEST_F(ProfileWindow, ColumnsAreAsWideAsTheirTexts)
{
    append(lists->rgb, 6, "MMMMMMMMMMMMMMMMMMMMMMMMMMM.MMM", "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
    writeFile();
    inWindow([&] {
        for (const int column : {1, 2, 3}) {
            const QFontMetrics metrics(cell(0, column, Qt::FontRole).value<QFont>());
            for (int row = 0; row < 7; ++row)
                EXPECT_LT(metrics.horizontalAdvance(cell(row, column).toString()), table()->columnWidth(column));
        }
        EXPECT_EQ(cell(0, 1, Qt::FontRole).value<QFont>().pointSize(), 12);
    });
}

TEST(ProfileTableModel, FlipsOnlyBetweenTheTwoStatesOfACode)
{
    auto list = std::make_unique<ProfileList>();
    for (int32_t inMenu = 0; inMenu <= 8; ++inMenu)
        append(*list, inMenu, "a", "b");
    bv::ProfileTableModel model;
    model.setList(list.get(), true);
    const int32_t other[] = {0, 3, 4, 1, 2, 6, 5, 7, 8};
    for (int row = 0; row < 9; ++row) {
        const QModelIndex mark = model.index(row, bv::ProfileTableModel::kInMenu);
        const QVariant now = mark.data(Qt::CheckStateRole);
        // The value that it has changes nothing.
        model.setData(mark, now, Qt::CheckStateRole);
        EXPECT_EQ(list->records[row].InMenu, row);
        model.setData(mark, now == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        EXPECT_EQ(list->records[row].InMenu, other[row]);
    }
    EXPECT_FALSE(model.setData(model.index(0, 1), QStringLiteral("x"), Qt::EditRole));
    EXPECT_FALSE(model.flags(model.index(0, 1)) & Qt::ItemIsEditable);
    // A count that no list can have shows no more than there are slots.
    list->count = 9999;
    EXPECT_EQ(model.rowCount(), 500);
    list->count = -1;
    EXPECT_EQ(model.rowCount(), 0);
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
    // Half transparent red over white.
    EXPECT_EQ(canvas.pixelColor(16, 12).red(), 255);
    EXPECT_NEAR(canvas.pixelColor(16, 12).green(), 127, 2);
}

} // namespace
} // namespace bvtest
