// SPDX-License-Identifier: GPL-2.0-or-later
// Keyboard access: tabs through the whole dialog, with a foreign pane and with ours. Every control must be reached and
// must have an accessible name.
#include "DialogWorld.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace bv;

namespace {

struct TestedPane
{
    const char *name;
    QString plugin;
    QString ppd; // empty: the PPD of the foreign panel
    // `popUp`: its last choice enables the button `turning`, which shows other controls. Both may be empty.
    QString popUp;
    QString turning;
};

std::vector<TestedPane> testedPanes()
{
    return {
        {"Foreign", BV_BUILD_DIR "/tests/testpanel.so", QString(), {}, {}},
        {"Ours", BV_BUILD_DIR "/lib/bvco/bvco.so", BV_SOURCE_DIR "/resources/QL70.ppd", "menu_QuickColor",
         "button_AdvanceColorOptions"},
    };
}

class Keyboard : public bvtest::DialogTest, public ::testing::WithParamInterface<TestedPane>
{
protected:
    void SetUp() override
    {
        // The pane must find none of the machine's own files.
        qputenv("BVCO_ROOT", folder.path().toUtf8());
        DialogTest::SetUp();
        loadPlugin(GetParam().plugin);
        if (!GetParam().ppd.isEmpty())
            source.ppdPaths["Paper"] = GetParam().ppd;
        open();
        dialog->resize(1024, 900); // with room for the preview
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    void TearDown() override
    {
        DialogTest::TearDown();
        qunsetenv("BVCO_ROOT");
    }

    // The visible controls that the keyboard must reach.
    QList<QWidget *> controls()
    {
        QList<QWidget *> found;
        for (QWidget *widget : dialog->findChildren<QWidget *>()) {
            const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
            if (takesFocus && widget->isVisible() && widget->isEnabled() && !qobject_cast<QScrollBar *>(widget) &&
                !qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) &&
                !qobject_cast<QComboBox *>(widget->parentWidget()))
                found << widget;
        }
        return found;
    }

    // Presses the key until a widget gets the focus again. Returns the focused widgets in order.
    QList<QWidget *> tabRound(Qt::Key key)
    {
        QList<QWidget *> reached;
        for (int presses = 0; presses < 1000; ++presses) {
            QWidget *focus = QApplication::focusWidget();
            if (!focus || reached.contains(focus))
                break;
            reached << focus;
            QTest::keyClick(focus, key);
        }
        return reached;
    }

    // Arrow keys move through a group of radio buttons, so Tab needs to reach only one of them.
    static bool reachedByArrows(QWidget *widget, const QList<QWidget *> &reached)
    {
        if (!qobject_cast<QRadioButton *>(widget))
            return false;
        return std::any_of(reached.begin(), reached.end(), [widget](QWidget *other) {
            return qobject_cast<QRadioButton *>(other) && other->parentWidget() == widget->parentWidget();
        });
    }

    // True if the widget has a fixed name. A combo box without one would be read out by its current text.
    bool hasName(const QWidget *widget)
    {
        if (!widget->accessibleName().isEmpty() || qobject_cast<const QTabBar *>(widget))
            return true;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget); button && !button->text().isEmpty())
            return true;
        if (const auto *box = qobject_cast<const QGroupBox *>(widget); box && !box->title().isEmpty())
            return true;
        const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [widget](const QLabel *label) {
            return label->buddy() == widget && !label->text().isEmpty();
        });
    }

    static std::string describe(const QWidget *widget)
    {
        return std::string(widget->metaObject()->className()) + " \"" + widget->objectName().toStdString() + "\"";
    }

    void expectAllReached(const std::string &where)
    {
        dialog->parts().print->setFocus();
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        const QList<QWidget *> forward = tabRound(Qt::Key_Tab);
        for (QWidget *widget : controls()) {
            EXPECT_TRUE(forward.contains(widget) || reachedByArrows(widget, forward))
                << where << ": not reached: " << describe(widget);
            EXPECT_TRUE(hasName(widget)) << where << ": no name: " << describe(widget);
        }
        dialog->parts().print->setFocus();
        const QList<QWidget *> backward = tabRound(Qt::Key_Backtab);
        EXPECT_EQ(forward.size(), backward.size()) << where;
    }

    void expectAllPagesReached(const std::string &where)
    {
        expectAllReached(where);
        for (QTabWidget *tabs : dialog->findChildren<QTabWidget *>()) {
            for (int page = 1; tabs->isVisible() && page < tabs->count(); ++page) {
                tabs->setCurrentIndex(page);
                expectAllReached(where + ", " + tabs->tabText(page).toStdString());
            }
        }
    }
};

TEST_P(Keyboard, ReachesEveryControlAndEachHasAName)
{
    expectAllPagesReached(GetParam().name);
    if (GetParam().turning.isEmpty())
        return;
    QTest::keyClick(find<QComboBox>(GetParam().popUp.toLatin1()), Qt::Key_End);
    auto *button = find<QPushButton>(GetParam().turning.toLatin1());
    ASSERT_TRUE(button->isEnabled());
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_FALSE(button->isVisible());
    EXPECT_TRUE(dialog->findChild<QWidget *>("paneArea")->isAncestorOf(QApplication::focusWidget()));
    expectAllPagesReached(GetParam().name + std::string(" after ") + GetParam().turning.toStdString());
}

TEST_P(Keyboard, FollowsTheLayoutFromTopToBottomAtAnyWidth)
{
    for (const int width : {1024, 1500, 1000}) {
        dialog->resize(width, 600);
        QCoreApplication::processEvents();
        dialog->parts().print->setFocus();
        const QList<QWidget *> round = tabRound(Qt::Key_Tab);
        QStringList names;
        for (const QWidget *widget : round)
            names << widget->objectName();
        const QWidget *pane = dialog->findChild<QWidget *>("paneArea");
        const auto firstOfPane =
            std::find_if(round.begin(), round.end(), [&](QWidget *w) { return pane->isAncestorOf(w); });
        ASSERT_NE(firstOfPane, round.end());
        const qsizetype paneAt = firstOfPane - round.begin();
        EXPECT_LT(names.indexOf("printer"), names.indexOf("documentList"));
        EXPECT_LT(names.indexOf("documentList"), names.indexOf("copies"));
        EXPECT_LT(names.indexOf("copies"), names.indexOf("row_PageSize"));
        EXPECT_LT(names.indexOf("row_PageSize"), names.indexOf("previewToggle"));
        EXPECT_LT(names.indexOf("previewToggle"), paneAt);
        EXPECT_LT(paneAt, names.indexOf("summaryView")) << qPrintable(names.join(' '));
        EXPECT_LT(names.indexOf("summaryView"), names.indexOf("restoreDefaults"));
        EXPECT_LT(names.indexOf("restoreDefaults"), names.indexOf("cancel"));
    }
}

TEST_P(Keyboard, FitsASmallScreen)
{
    EXPECT_LE(dialog->minimumSizeHint().width(), 1024);
    EXPECT_LE(dialog->minimumSizeHint().height(), 560);
}

INSTANTIATE_TEST_SUITE_P(Panes, Keyboard, ::testing::ValuesIn(testedPanes()),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
