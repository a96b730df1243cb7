// SPDX-License-Identifier: GPL-2.0-or-later
// Stands in the place of something that is not there: says what is being waited for, with a moving indicator, or why it
// is missing.
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace bv {

class WaitPanel : public QWidget
{
    Q_OBJECT

public:
    explicit WaitPanel(QWidget *parent = nullptr);

    // A sentence without an indicator.
    void say(const QString &sentence);
    // A sentence with a moving indicator. `skipTitle` adds a button, which sends skipped(); empty: none.
    void wait(const QString &sentence, const QString &skipTitle = QString());
    QString text() const;
    QPushButton *skipButton() const { return m_skip; }

signals:
    void skipped();

private:
    QLabel *m_text;
    QProgressBar *m_busy;
    QPushButton *m_skip;
};

} // namespace bv
