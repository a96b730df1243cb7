// SPDX-License-Identifier: GPL-2.0-or-later
// While the dialog waits or sends, drops all input but that for a few buttons.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace bv {

// What the user types or clicks meanwhile is lost, so that nothing is carried out later that was meant for another
// moment. Esc and the window's own close button still reject the dialog.
class InputGate : public QObject
{
    Q_OBJECT

public:
    explicit InputGate(QWidget *dialog);

    // Lets input through to these buttons only. Open pop-ups are closed.
    void close(const QList<QWidget *> &buttons);
    // Lets everything through again.
    void open();
    bool isClosed() const { return m_isClosed; }

signals:
    // Input is dropped from now on, or is let through again.
    void switched(bool isClosed);
    // The user pressed Esc while the gate was closed.
    void escaped();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool isOurs(const QWidget *widget) const;
    void passFocus(bool forward);

    QWidget *m_dialog;
    QList<QPointer<QWidget>> m_buttons;
    bool m_isClosed = false;
};

} // namespace bv
