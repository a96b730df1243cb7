// SPDX-License-Identifier: GPL-2.0-or-later
// An event filter over the whole application.
#include "widgets/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

namespace bv {

namespace {

bool changesByWheel(const QObject *object)
{
    return qobject_cast<const QComboBox *>(object) || qobject_cast<const QAbstractSpinBox *>(object) ||
           qobject_cast<const QTabBar *>(object) ||
           (qobject_cast<const QAbstractSlider *>(object) && !qobject_cast<const QScrollBar *>(object));
}

// The control that a wheel event for the widget would change; null when there is none. Spin boxes and editable pop-ups
// have a text field over them, which passes the wheel on.
QWidget *controlOf(QWidget *widget)
{
    if (changesByWheel(widget))
        return widget;
    QWidget *parent = widget->isWindow() ? nullptr : widget->parentWidget();
    return parent && changesByWheel(parent) ? parent : nullptr;
}

} // namespace

WheelGuard::WheelGuard(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *object, QEvent *event)
{
    if (!object->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(object);
    if (event->type() == QEvent::Polish && changesByWheel(widget) && widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus); // the wheel would give it the focus first
    if (event->type() != QEvent::Wheel)
        return false;
    const QWidget *control = controlOf(widget);
    if (!control || control->hasFocus() || widget->hasFocus())
        return false;
    event->ignore(); // goes on to the parent
    return true;
}

} // namespace bv
