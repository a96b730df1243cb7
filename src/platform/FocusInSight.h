// SPDX-License-Identifier: GPL-2.0-or-later
// Scroll areas that follow the keyboard focus, however it moved.
#pragma once

#include <QApplication>
#include <QScrollArea>
#include <QTimer>

namespace bv {

// Has `area` scroll to the control inside it that gets the focus, as long as it lives. By itself a QScrollArea follows
// the Tab key only, not a mnemonic and not a call of setFocus(). What is pressed with the mouse does not move away from
// under the pointer. To be called once for each area, and only while there is a QApplication.
inline void keepFocusInSight(QScrollArea *area)
{
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *now) {
        if (!now || QApplication::mouseButtons() != Qt::NoButton)
            return;
        // Later, since what moves the focus often changes the layout too.
        QTimer::singleShot(0, area, [area] {
            QWidget *control = QApplication::focusWidget();
            if (control && area->widget() && area->widget()->isAncestorOf(control))
                area->ensureWidgetVisible(control);
        });
    });
}

} // namespace bv
