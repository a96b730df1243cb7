// SPDX-License-Identifier: GPL-2.0-or-later
// A bar at the top of a window that shows a note or a problem without a message box.
#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace bv {

class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Note, Problem };

    explicit MessageBar(QWidget *parent = nullptr);

    // Replaces the text and announces it to assistive tools. The text is plain, never markup. `actionName` adds a
    // button for `action`; the bar is cleared before the action runs.
    void say(Kind kind, const QString &text, const QString &actionName = QString(), std::function<void()> action = {});
    // Removes the text and hides the bar.
    void clear();
    // The text shown, or empty.
    QString text() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void tint();

    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_act;
    QToolButton *m_close;
    std::function<void()> m_action;
    Kind m_kind = Kind::Note;
};

} // namespace bv
