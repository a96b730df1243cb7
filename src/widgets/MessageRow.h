// SPDX-License-Identifier: GPL-2.0-or-later
// One message: icon, text, a button for an action, and one that dismisses it. An alert for assistive tools.
#pragma once

#include "widgets/MessageBar.h"

#include <QFrame>

class QPushButton;

namespace bv {

class BreakingLabel;

class MessageRow : public QFrame
{
    Q_OBJECT

public:
    // Of a longer list, so many lines are shown at first.
    static constexpr qsizetype kFirstLines = 4;

    MessageRow(MessageBar::Kind kind, QString text, QString topic, QWidget *parent);

    // Adds a button, which sends acted().
    void addAction(const QString &name);

    const QString &text() const { return m_text; }
    const QString &topic() const { return m_topic; }
    // In tab order.
    QList<QWidget *> buttons() const;
    // Whether a long list is shown as a whole.
    bool isUnfolded() const;

signals:
    void acted();
    void dismissed();
    // The user had a long list shown as a whole, or its first lines again.
    void unfolded();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showText(bool whole);
    void tint();

    MessageBar::Kind m_kind;
    QString m_text;
    QString m_topic;
    BreakingLabel *m_label;
    QPushButton *m_more = nullptr; // null: all is shown
    QPushButton *m_act = nullptr;
    QWidget *m_close;
};

} // namespace bv
