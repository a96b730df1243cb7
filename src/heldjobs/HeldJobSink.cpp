// SPDX-License-Identifier: GPL-2.0-or-later
// RFC 3380 (Set-Job-Attributes), RFC 8011 (Release-Job, Cancel-Job).
#include "heldjobs/HeldJobSink.h"

#include "heldjobs/AttributeReset.h"
#include "jobs/OptionEncoding.h"
#include "queues/BackgroundCall.h"
#include "queues/JobOnlyKeys.h"

#include <QCoreApplication>
#include <QLocale>

namespace bv {

namespace {

using Sent = Result<SentJob>;

QString tr(const char *text)
{
    return QCoreApplication::translate("HeldJobSink", text);
}

// Another range than the job came with would be counted through all of its documents.
bool isRangeOverDocuments(const HeldJob &job, const JobOptions &options)
{
    const QString key = QString::fromLatin1(kPageRangesKey);
    const auto wanted = options.find(key);
    const auto had = job.attributes.options.find(key);
    return job.documents > 1 && wanted != options.end() &&
           (had == job.attributes.options.end() || had->second != wanted->second);
}

IppMessage changeRequest(const HeldJob &job, const JobOptions &options)
{
    IppMessage request = jobRequest(IPP_OP_SET_JOB_ATTRIBUTES, {job.id, {}});
    for (const auto &[keyword, value] : options)
        addJobOption(request.get(), keyword, value);
    for (const QString &name : job.attributes.names) {
        if (options.count(name) != 0)
            continue;
        const AttributeReset reset = resetOf(name, options);
        if (reset.kind == AttributeReset::Kind::Set)
            addJobOption(request.get(), name, reset.value);
        else if (reset.kind == AttributeReset::Kind::Delete)
            ippAddOutOfBand(request.get(), IPP_TAG_JOB, IPP_TAG_DELETEATTR, name.toUtf8().constData());
    }
    return request;
}

QString refusalOf(const ServerAnswer &answer, int id)
{
    return answer.message
               ? tr("The print server refuses to change job %1, which stays held: %2.").arg(id).arg(answer.words())
               : tr("%1 Job %2 stays held.").arg(answer.problem, QString::number(id));
}

} // namespace

Sent HeldJobSink::submit(const JobRequest &request, CallControl &control) const
{
    if (const QString problem = problemWithOptions(request.options); !problem.isEmpty())
        return Sent::failure(problem);
    if (isRangeOverDocuments(m_job, request.options))
        return Sent::failure(
            tr("A range of pages belongs to one document, and this job has %1. Print all of their pages.")
                .arg(QLocale().toString(m_job.documents)));
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Sent::failure(server.error());
    // Somebody else may have released or canceled it while the dialog was open.
    if (const Result<HeldJob> found = findHeldJob(server.value(), {m_job.id, m_job.queue}); !found)
        return Sent::failure(found.error());
    const ServerAnswer changed = server.value().ask(changeRequest(m_job, request.options));
    if (!changed.isGood() || control.isCancelled())
        return Sent::failure(control.isCancelled() ? tr("Nothing was printed. Job %1 stays held.").arg(m_job.id)
                                                   : refusalOf(changed, m_job.id));
    const UnfinishedWork untilItIsReleased;
    const ServerAnswer released = server.value().ask(jobRequest(IPP_OP_RELEASE_JOB, {m_job.id, {}}));
    if (!released.message)
        return Sent::failure(tr("The print server did not confirm that job %1 is released. Look at the printer's jobs "
                                "before printing again.")
                                 .arg(m_job.id));
    if (!released.isGood())
        return Sent::failure(refusalOf(released, m_job.id));
    return SentJob{m_job.id, QString()};
}

QString cancelHeldJob(const JobName &name, CallControl &control)
{
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return server.error();
    const ServerAnswer answer = server.value().ask(jobRequest(IPP_OP_CANCEL_JOB, name));
    if (answer.isGood())
        return {};
    if (!answer.message)
        return tr("The print server did not confirm that job %1 is canceled. Look at the printer's jobs.").arg(name.id);
    return tr("Job %1 could not be canceled: %2.").arg(name.id).arg(answer.words());
}

} // namespace bv
