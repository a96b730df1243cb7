// SPDX-License-Identifier: GPL-2.0-or-later
// Turns a ticket into a job.
#include "jobs/PrintJob.h"

#include "jobs/PageRange.h"
#include "jobs/StandardAttributes.h"
#include "queues/JobOnlyKeys.h"
#include "queues/QueueSession.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

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
        if (key.isEmpty())
            continue; // JSON allows it, but no option has such a name
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
        if (info.size() == 0)
            return tr("The document %1 is empty.").arg(path);
    }
    return {};
}

QString checkRange(const JobOptions &options, const QStringList &documents, const PageCount &pageCount)
{
    const auto wanted = options.find(QString::fromLatin1(kPageRangesKey));
    if (wanted == options.end() || documents.isEmpty())
        return {};
    if (documents.size() > 1)
        return tr("A range of pages belongs to one document. Print the documents one by one, or all of their pages.");
    const PageRange range = parsePageRange(wanted->second);
    const std::optional<int> pages = pageCount && range.isValid() ? pageCount(documents.first()) : std::optional<int>();
    // The runs are in order, so the last one reaches farthest.
    const int farthest = !pages                                        ? 0
                         : range.runs.back().last == PageRun::kOpenEnd ? range.runs.back().first
                                                                       : range.runs.back().last;
    if (!pages || farthest <= *pages)
        return {};
    const QString name = QFileInfo(documents.first()).fileName();
    const QString wish = QLocale().toString(farthest);
    return *pages == 1 ? tr("%1 has 1 page; there is no page %2.").arg(name, wish)
                       : tr("%1 has %2 pages; there is no page %3.").arg(name, QLocale().toString(*pages), wish);
}

Result<JobRequest> prepareJob(QueueSession &session, PrintPanel *panel, const QStringList &documents,
                              const JobOptions &extra, PrintDictionary *choices)
{
    using Job = Result<JobRequest>;
    QString error;
    const bool isSaved = !panel || panel->saveValuesAndReturnError(&error);
    if (choices)
        *choices = deepCopy(session.ticket().entries());
    if (!isSaved)
        return Job::failure(error.isEmpty() ? tr("The options cannot be kept.") : error);
    if (panel && !panel->shouldPrint())
        return Job::failure(tr("The options do not let this job be printed."));
    const QString title = documents.isEmpty() ? QString() : QFileInfo(documents.first()).fileName();
    return JobRequest{session.queue(), title, documents,
                      jobOptions(session.ticket().entries(), session.ppdFile(), extra)};
}

} // namespace bv
