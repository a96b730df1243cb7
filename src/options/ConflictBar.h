// SPDX-License-Identifier: GPL-2.0-or-later
// Says which choices do not go together, with buttons that settle it.
#pragma once

#include "options/ConflictFinder.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace bv {

class ConflictBar final : public QFrame
{
    Q_OBJECT

public:
    explicit ConflictBar(QWidget *parent);

    // Shows them, the buttons for the first one. Hides the bar when there are none; but after one of its buttons it
    // keeps its place until the pointer leaves it, so that nothing moves under the pointer.
    void showConflicts(const std::vector<Conflict> &conflicts);
    // The sentences about the conflicts; empty when there is none, whether the bar is still there or not.
    QString text() const { return m_sentences; }
    // In the order of the layout.
    const QList<QWidget *> &buttons() const { return m_ways; }

signals:
    // The user wants this choice. Both arguments are PPD keywords.
    void settled(const QString &keyword, const QString &choice);
    // There are other buttons, at the end of the tab order.
    void buttonsChanged();

protected:
    void leaveEvent(QEvent *event) override;

private:
    void settle(const Conflict::Way &way);

    QLabel *m_icon;
    QLabel *m_text;
    QString m_sentences;
    bool m_keepsPlace = false;
    QHBoxLayout *m_buttons;
    QList<QWidget *> m_ways; // the buttons
    QString m_shown;         // what the buttons stand for
};

// The first sentences, one a line, and how many more there are.
QString conflictSentences(const std::vector<Conflict> &conflicts);

} // namespace bv
