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

    // Shows them, the buttons for the first one. Hides the bar when there are none.
    void showConflicts(const std::vector<Conflict> &conflicts);
    // The sentences shown, or empty.
    QString text() const;
    // In the order of the layout.
    const QList<QWidget *> &buttons() const { return m_ways; }

signals:
    // The user wants this choice. Both arguments are PPD keywords.
    void settled(const QString &keyword, const QString &choice);
    // There are other buttons, at the end of the tab order.
    void buttonsChanged();

private:
    QLabel *m_text;
    QHBoxLayout *m_buttons;
    QList<QWidget *> m_ways; // the buttons
    QString m_shown;         // what the buttons stand for
};

// The first sentences, one a line, and how many more there are.
QString conflictSentences(const std::vector<Conflict> &conflicts);

} // namespace bv
