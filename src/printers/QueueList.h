// SPDX-License-Identifier: GPL-2.0-or-later
// The list of printers, with a line about the chosen one.
#pragma once

#include "printers/PrinterMenu.h"
#include "queues/PrintServer.h"

#include <QHash>
#include <QWidget>

namespace bv {

class ElidedLabel;

class QueueList : public QWidget
{
    Q_OBJECT

public:
    explicit QueueList(QWidget *parent = nullptr);

    // Replaces the queues; those of `last`, by name, come first, in its order. The choice and the marks stay where
    // their queues are still there. Sends no signal.
    void setQueues(const std::vector<PrintQueue> &queues, const QStringList &last = {});
    // Says that the printers are being looked for, until setQueues().
    void showLooking();
    // Chooses a queue by name without sending a signal. False if there is no such queue.
    bool choose(const QString &queue);
    // Name of the chosen queue, or empty.
    QString chosen() const;

    // What the list says of a queue beside its state.
    enum class Mark {
        None,
        WithoutPane, // it prints without the panel's options
        Unusable,    // it could not be opened the last time
    };
    // Marks a queue; its tool tip gives the reason.
    void mark(const QString &queue, Mark mark, const QString &reason = QString());

    PrinterMenu *popUp() const { return m_popUp; }

signals:
    // The user chose another queue.
    void queueChosen(const QString &queue);

private:
    struct MarkOfQueue
    {
        Mark mark;
        QString reason;
    };
    void showItem(int row);
    void showNote();

    PrinterMenu *m_popUp;
    ElidedLabel *m_note;
    std::vector<PrintQueue> m_queues; // one for each item
    QHash<QString, MarkOfQueue> m_marks;
};

} // namespace bv
