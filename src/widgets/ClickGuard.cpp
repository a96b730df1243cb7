// SPDX-License-Identifier: GPL-2.0-or-later
// Filters the events of the native window, where each click comes by once.
#include "widgets/ClickGuard.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace bv {

ClickGuard::ClickGuard(QWidget *window) : QObject(window), m_window(window)
{
    window->installEventFilter(this);
}

bool ClickGuard::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_window) {
        // There may be another native window since; a second filter replaces the first one.
        if (event->type() == QEvent::Show && m_window->windowHandle())
            m_window->windowHandle()->installEventFilter(this);
        return false;
    }
    const auto target = [this, event]() -> QWidget * {
        const QPoint position = static_cast<const QMouseEvent *>(event)->position().toPoint();
        QWidget *child = m_window->childAt(position);
        return child ? child : m_window;
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // The second click comes by as a press and then as a double click. None of it may arrive, or Qt would wait for
        // the button's release.
        m_drops = static_cast<const QMouseEvent *>(event)->flags().testFlag(Qt::MouseEventCreatedDoubleClick) &&
                  target() != m_pressed;
        if (!m_drops)
            m_pressed = target();
        return m_drops;
    case QEvent::MouseButtonDblClick:
        return m_drops;
    case QEvent::MouseButtonRelease:
        return std::exchange(m_drops, false);
    default:
        return false;
    }
}

} // namespace bv
