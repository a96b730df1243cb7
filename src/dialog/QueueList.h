// The list of printers: every queue, with a line that says what is to be known about the chosen one.
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

    // Shows other queues in place of the old ones; none of them is chosen, and nothing is told.
    void setQueues(const std::vector<PrintQueue> &queues);
    // Chooses a queue by name and tells nobody; false when there is none of that name.
    bool choose(const QString &queue);
    // Name of the chosen queue; empty when none is.
    QString chosen() const;
    // Says in the list that a queue has no pane, and in its tool tip why.
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
