// A bar at the top of a window that says what went wrong, or what is worth knowing, without a box in the way.
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

    // Shows a plain text (never read as markup) in place of an older one, and tells assistive tools. With an action
    // there is a button of that name as well; the bar is cleared before the action runs.
    void say(Kind kind, const QString &text, const QString &actionName = QString(), std::function<void()> action = {});
    // Takes the text away and hides the bar.
    void clear();
    // The text shown; empty when there is none.
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
