// SPDX-License-Identifier: GPL-2.0-or-later
// The row that is shown while a job is sent: how much of it has gone, and a button that stops it.
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace bv {

class SendingRow : public QWidget
{
    Q_OBJECT

public:
    explicit SendingRow(QWidget *parent = nullptr);

    // Shows the progress in bytes. With a sum of 0 it only moves.
    void showProgress(qint64 done, qint64 sum);
    QPushButton *stopButton() const { return m_stop; }

signals:
    void stopped();

private:
    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_stop;
};

} // namespace bv
