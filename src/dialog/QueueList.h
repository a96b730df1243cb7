// SPDX-License-Identifier: GPL-2.0-or-later
// The list of printers, with a line about the chosen one.
#pragma once

#include "queues/PrintServer.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace bv {

class QueueList : public QWidget
{
    Q_OBJECT

public:
    explicit QueueList(QWidget *parent = nullptr);

    // Replaces the queues. Afterwards none is chosen. Sends no signal.
    void setQueues(const std::vector<PrintQueue> &queues);
    // Chooses a queue by name without sending a signal. False if there is no such queue.
    bool choose(const QString &queue);
    // Name of the chosen queue, or empty.
    QString chosen() const;
    // Marks a queue that has no pane; its tool tip gives the reason.
    void markWithoutPane(const QString &queue, const QString &reason);

    QComboBox *popUp() const { return m_popUp; }

signals:
    // The user chose another queue.
    void queueChosen(const QString &queue);

private:
    void showNote();

    QComboBox *m_popUp;
    QLabel *m_note;
};

} // namespace bv
