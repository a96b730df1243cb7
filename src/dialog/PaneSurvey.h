// Looks through the queues in the background and finds those for which a panel has nothing to show.
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
    // The source must outlive the survey. Keys: the PPD options that the panel is for.
    PaneSurvey(const QueueSource &source, QStringList queues, QStringList keys, QObject *parent = nullptr);
    // Ends after the queue that is being looked at.
    ~PaneSurvey() override;

    // Begins to look. Connect first: what is found before that is told to nobody.
    void start();

signals:
    // Sent on the thread that the survey lives in. Without a PPD, error says why; else the PPD has none of the options.
    void withoutPane(const QString &queue, const QString &error);

private:
    std::atomic<bool> m_stop = false;
    std::unique_ptr<QThread> m_thread;
};

} // namespace bv
