// SPDX-License-Identifier: GPL-2.0-or-later
// The steps of a job on its way.
#include "waiting/JobSending.h"

#include "widgets/SendingRow.h"

namespace bv {

JobSending::JobSending(std::shared_ptr<const JobSink> sink, PageCount pageCount, SendingRow *row)
    : m_sink(std::move(sink)), m_pageCount(std::move(pageCount)), m_row(row)
{
    constexpr int kProgressMilliseconds = 100;
    m_progress.setInterval(kProgressMilliseconds);
    connect(&m_progress, &QTimer::timeout, this, [this] {
        if (const CallControl *control = m_submit.control())
            m_row->showProgress(control->done(), control->sum());
    });
}

void JobSending::start(const QStringList &documents, const JobOptions &options, Maker make)
{
    m_isRunning = true;
    m_row->showProgress(0, 0);
    m_row->show();
    m_progress.start();
    m_submit.cancel(); // of a job that was stopped before
    m_check.start(
        [documents, options, count = m_pageCount, needed = needsDocuments()](CallControl &) {
            const QString problem = needed ? checkDocuments(documents) : QString();
            return problem.isEmpty() ? checkRange(options, documents, count) : problem;
        },
        tr("The documents cannot be read: their disk does not answer."),
        [this, make = std::move(make)](const QString &problem) {
            const Result<JobRequest> request = problem.isEmpty() ? make() : Result<JobRequest>::failure(problem);
            if (request) {
                submit(request.value());
            } else {
                end();
                emit failed(request.error());
            }
        });
}

void JobSending::submit(const JobRequest &request)
{
    using Sent = Result<SentJob>;
    m_submit.start([sink = m_sink, request](CallControl &control) { return sink->submit(request, control); },
                   Sent::failure(unconfirmedSentence()),
                   [this](const Sent &job) {
                       end();
                       if (job)
                           emit sent(job.value());
                       else
                           emit failed(job.error());
                   });
}

void JobSending::stop()
{
    const bool hadNoJob = m_check.isRunning();
    m_check.cancel();
    m_submit.stop();
    end();
    if (hadNoJob)
        emit failed(tr("The job was canceled. Nothing was printed."));
}

void JobSending::end()
{
    m_isRunning = false;
    m_progress.stop();
    m_row->hide();
}

} // namespace bv
