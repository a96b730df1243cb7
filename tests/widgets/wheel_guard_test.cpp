// SPDX-License-Identifier: GPL-2.0-or-later
// The wheel over controls that have no focus.
#include "widgets/WheelGuard.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace bv;

namespace {

// A column of controls, higher than the area that it is in.
class Wheel : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto *column = new QWidget;
        auto *layout = new QVBoxLayout(column);
        popUp->addItems({"a", "b", "c"});
        tabs->addTab("x");
        tabs->addTab("y");
        for (QWidget *control : controls())
            layout->addWidget(control);
        layout->addSpacing(2000);
        area.setWidget(column);
        area.resize(200, 200);
        area.show();
    }
    QList<QWidget *> controls() const { return {popUp, spin, tabs}; }

    static void turn(QWidget *widget)
    {
        const QPointF middle = widget->rect().center();
        QWheelEvent event(middle, widget->mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // only such a one goes from widget to widget
        qApp->notify(widget, &event);
    }
    int changes() const { return popUp->currentIndex() + tabs->currentIndex() - spin->value(); }

    WheelGuard guard;
    QScrollArea area;
    QComboBox *popUp = new QComboBox;
    QSpinBox *spin = new QSpinBox;
    QTabBar *tabs = new QTabBar;
};

TEST_F(Wheel, ScrollsTheAreaAndChangesNoValueWithoutTheFocus)
{
    spin->setValue(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
    QList<QWidget *> targets = controls();
    targets << spin->findChild<QWidget *>("qt_spinbox_lineedit");
    area.setFocus();
    for (QWidget *target : std::as_const(targets)) {
        const int before = area.verticalScrollBar()->value();
        turn(target);
        EXPECT_EQ(changes(), 0) << target->metaObject()->className();
        EXPECT_GT(area.verticalScrollBar()->value(), before) << target->metaObject()->className();
        EXPECT_EQ(target->focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus, 0)
            << "the wheel gives " << target->metaObject()->className() << " the focus";
    }
    popUp->setFocus();
    turn(popUp);
    EXPECT_EQ(popUp->currentIndex(), 1) << "who has put the focus there means it";
}

} // namespace
