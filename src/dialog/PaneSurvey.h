// SPDX-License-Identifier: GPL-2.0-or-later
// Checks the queues in the background and reports those that have none of the panel's options.
#pragma once

#include "queues/QueueSource.h"

#include <QObject>
#include <QStringList>
#include <QThread>
#include <atomic>

namespace bv {

class PaneSurvey : public QObject
{
    Q_OBJECT

public:
    // The source must outlive the survey. `keys` are the PPD options that the panel serves.
    PaneSurvey(const QueueSource &source, QStringList queues, QStringList keys, QObject *parent = nullptr);
    // Waits until the queue being checked is done.
    ~PaneSurvey() override;

    // Starts the check. Connect the signal first: earlier results would be lost.
    void start();

signals:
    // Sent on the thread that the survey lives in. `error` says why the queue has no PPD; it is empty when there is a
    // PPD without any of the options.
    void withoutPane(const QString &queue, const QString &error);

private:
    std::atomic<bool> m_stop = false;
    std::unique_ptr<QThread> m_thread;
};

} // namespace bv
