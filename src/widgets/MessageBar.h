// SPDX-License-Identifier: GPL-2.0-or-later
// The messages at the top of a window, one below the other, without a message box.
#pragma once

#include <QScrollArea>
#include <functional>
#include <memory>
#include <vector>

namespace bv {

class MessageRow;

// Hidden while it has no message. Takes at most a share of the window's height, more of it while the user has a long
// list shown as a whole, and scrolls then.
class MessageBar : public QScrollArea
{
    Q_OBJECT

public:
    enum class Kind { Note, Problem };

    explicit MessageBar(QWidget *parent = nullptr);
    ~MessageBar() override;

    // Adds a message at the end and has assistive tools speak it. The text is plain, never markup; a long one shows its
    // first lines and a button for the rest. `actionName` adds a button for `action`; the message goes before the
    // action runs. A message with the same text, or the same topic where there is one, is replaced.
    void say(Kind kind, const QString &text, const QString &actionName = QString(), std::function<void()> action = {},
             const QString &topic = QString());
    // Removes the message of this topic, if there is one.
    void drop(const QString &topic);
    // Removes all messages.
    void clear();
    // The texts of all messages in full, a line each at least; empty when there is none.
    QString text() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void remove(MessageRow *row);
    int contentHeight() const;

    std::vector<MessageRow *> m_rows;
    QWidget *m_content;
};

} // namespace bv
