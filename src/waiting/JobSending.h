// SPDX-License-Identifier: GPL-2.0-or-later
// Sends one job beside the window: checks its documents, has it made, and hands it over, while the window only shows
// how far it is and takes Cancel.
#pragma once

#include "jobs/PrintJob.h"
#include "queues/BackgroundCall.h"

#include <QObject>
#include <QTimer>

namespace bv {

class SendingRow;

class JobSending : public QObject
{
    Q_OBJECT

public:
    // Makes the job once its documents are found good; called on this thread.
    using Maker = std::function<Result<JobRequest>()>;

    // The row is borrowed. An empty function knows no page count.
    JobSending(std::shared_ptr<const JobSink> sink, PageCount pageCount, SendingRow *row);

    void start(const QStringList &documents, const JobOptions &options, Maker make);
    // Stops sending at once. failed() follows when the job's receiver has been told.
    void stop();
    // False: the job's receiver has them already.
    bool needsDocuments() const { return m_sink->takesDocuments(); }
    // From start() until sent(), failed() or stop().
    bool isRunning() const { return m_isRunning; }

signals:
    void sent(const bv::SentJob &job);
    // A sentence for the user. Nothing was printed, or the sentence says that this is not sure.
    void failed(const QString &sentence);

private:
    void submit(const JobRequest &request);
    void end();

    std::shared_ptr<const JobSink> m_sink;
    PageCount m_pageCount;
    SendingRow *m_row;
    BackgroundCall<QString> m_check;
    BackgroundCall<Result<SentJob>> m_submit;
    QTimer m_progress;
    bool m_isRunning = false;
};

} // namespace bv
