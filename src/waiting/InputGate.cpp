// SPDX-License-Identifier: GPL-2.0-or-later
// An event filter over the whole application.
#include "waiting/InputGate.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

namespace bv {

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

InputGate::InputGate(QWidget *dialog) : QObject(dialog), m_dialog(dialog) {}

void InputGate::close(const QList<QWidget *> &buttons)
{
    m_buttons.clear();
    for (QWidget *button : buttons)
        m_buttons << button;
    while (QWidget *popUp = QApplication::activePopupWidget())
        if (!popUp->close())
            break;
    if (m_isClosed)
        return;
    qApp->installEventFilter(this);
    m_isClosed = true;
    emit switched(true);
}

void InputGate::open()
{
    if (!m_isClosed)
        return;
    qApp->removeEventFilter(this);
    m_isClosed = false;
    emit switched(false);
}

bool InputGate::isOurs(const QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget())
        if (widget == m_dialog)
            return true;
    return false;
}

bool InputGate::eventFilter(QObject *object, QEvent *event)
{
    if (!isInput(event->type()) || !object->isWidgetType())
        return false;
    const auto *widget = static_cast<const QWidget *>(object);
    if (!isOurs(widget))
        return false;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            emit escaped();
            return true;
        }
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            passFocus(key == Qt::Key_Tab);
            return true;
        }
    }
    return std::none_of(m_buttons.begin(), m_buttons.end(), [widget](const auto &one) { return one == widget; });
}

// Tab goes round the buttons that can be reached.
void InputGate::passFocus(bool forward)
{
    QList<QWidget *> shown;
    for (const QPointer<QWidget> &button : std::as_const(m_buttons))
        if (button && button->isVisible() && button->isEnabled())
            shown << button;
    if (shown.isEmpty())
        return;
    const qsizetype now = shown.indexOf(QApplication::focusWidget());
    const qsizetype next = now < 0 ? 0 : (now + (forward ? 1 : shown.size() - 1)) % shown.size();
    shown[next]->setFocus(Qt::TabFocusReason);
}

} // namespace bv
