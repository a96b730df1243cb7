// SPDX-License-Identifier: GPL-2.0-or-later
// Turns a ticket into a submitted job.
#include "jobs/PrintJob.h"

#include "jobs/StandardAttributes.h"
#include "queues/QueueSession.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PrintJob", text);
}

} // namespace

JobOptions ticketOptions(const PrintDictionary &ticket)
{
    JobOptions options;
    for (const auto &[key, value] : ticket.entries) {
        if (const QString *text = value.string())
            options[key] = *text;
        else if (const int64_t *number = value.integer())
            options[key] = QString::number(*number);
    }
    return options;
}

JobOptions jobOptions(const PrintDictionary &ticket, ppd_file_t *ppd, const JobOptions &extra)
{
    JobOptions options = extra;
    options.merge(ticketOptions(ticket));
    addStandardAttributes(options, ppd);
    return options;
}

QString checkDocuments(const QStringList &documents)
{
    if (documents.isEmpty())
        return tr("There is no document to print.");
    for (const QString &path : documents) {
        const QFileInfo info(path);
        if (!info.exists())
            return tr("The document %1 is not there.").arg(path);
        if (!info.isFile())
            return tr("%1 is no document but a folder or a device.").arg(path);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return tr("The document %1 cannot be read: %2.").arg(path, file.errorString());
    }
    return {};
}

Result<PrintedJob> printDocuments(QueueSession &session, PrintPanel *panel, JobSink &sink, const QStringList &documents,
                                  const JobOptions &extra)
{
    using Printed = Result<PrintedJob>;
    if (const QString error = checkDocuments(documents); !error.isEmpty())
        return Printed::failure(error);
    if (panel) {
        QString error;
        if (!panel->saveValuesAndReturnError(&error))
            return Printed::failure(error.isEmpty() ? tr("The options cannot be kept.") : error);
        if (!panel->shouldPrint())
            return Printed::failure(tr("The options do not let this job be printed."));
    }
    PrintedJob job;
    job.options = jobOptions(session.ticket().entries(), session.ppdFile(), extra);
    Result<std::optional<int>> sent =
        sink.submit({session.queue(), QFileInfo(documents.first()).fileName(), documents, job.options});
    if (!sent)
        return Printed::failure(sent.error());
    job.id = sent.value();
    return job;
}

} // namespace bv
