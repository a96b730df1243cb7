// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps a double click from pressing something else: where a click makes the window change, another control may lie
// under the pointer when the second one comes.
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace bv {

// Drops the second click of a double click when it meets another widget than the first one did.
class ClickGuard : public QObject
{
    Q_OBJECT

public:
    // Guards this window, which is borrowed and owns the guard.
    explicit ClickGuard(QWidget *window);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *m_window;
    QPointer<QWidget> m_pressed; // by the last click that was let through
    bool m_drops = false;        // from the second click on until the button is released
};

} // namespace bv
