// SPDX-License-Identifier: GPL-2.0-or-later
// Asks for one job (RFC 8011, Get-Job-Attributes).
#include "heldjobs/HeldJob.h"

#include <QCoreApplication>
#include <QUrl>
#include <array>

namespace bv {

namespace {

using Found = Result<HeldJob>;

QString tr(const char *text)
{
    return QCoreApplication::translate("HeldJob", text);
}

// Why a job in this state cannot be released. %1 is its number.
struct StateRow
{
    ipp_jstate_t state;
    const char *sentence;
};

// clang-format off
constexpr std::array<StateRow, 6> kStates = {{
    {IPP_JSTATE_PENDING,    QT_TRANSLATE_NOOP("HeldJob", "Job %1 is not held: it waits for its turn, and is printed as it is.")},
    {IPP_JSTATE_PROCESSING, QT_TRANSLATE_NOOP("HeldJob", "Job %1 is being printed already.")},
    {IPP_JSTATE_STOPPED,    QT_TRANSLATE_NOOP("HeldJob", "Job %1 has begun to print, and stopped. Resume it in the system's printer settings.")},
    {IPP_JSTATE_CANCELED,   QT_TRANSLATE_NOOP("HeldJob", "Job %1 was canceled. Print the document again.")},
    {IPP_JSTATE_ABORTED,    QT_TRANSLATE_NOOP("HeldJob", "Job %1 failed. Print the document again.")},
    {IPP_JSTATE_COMPLETED,  QT_TRANSLATE_NOOP("HeldJob", "Job %1 has been printed already.")},
}};
// clang-format on

QString problemWithState(int state, int id)
{
    for (const StateRow &row : kStates)
        if (row.state == state)
            return tr(row.sentence).arg(id);
    return state == IPP_JSTATE_HELD ? QString() : tr("Job %1 is in a state that this dialog does not know.").arg(id);
}

QString problemOf(const ServerAnswer &answer, int id)
{
    if (!answer.message)
        return answer.problem;
    if (answer.status() == IPP_STATUS_ERROR_NOT_FOUND)
        return tr("The print server %1 has no job %2. It may have been printed long ago.")
            .arg(QString::fromUtf8(cupsServer()), QString::number(id));
    return tr("The print server does not tell about job %1: %2.").arg(id).arg(answer.words());
}

} // namespace

JobName JobName::fromText(const QString &text)
{
    const qsizetype dash = text.lastIndexOf(u'-');
    JobName name{0, dash < 0 ? QString() : text.left(dash)};
    const QString digits = text.mid(dash + 1);
    bool isNumber = false;
    name.id = digits.toInt(&isNumber);
    if (!isNumber || name.id < 1 || !digits.front().isDigit() || (dash >= 0 && name.queue.isEmpty()))
        return {};
    return name;
}

IppMessage jobRequest(ipp_op_t operation, const JobName &name)
{
    char uri[HTTP_MAX_URI] = "";
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/jobs/%d", name.id);
    IppMessage request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QString queueOfUri(const QString &uri)
{
    const QString path = QUrl(uri).path(QUrl::FullyDecoded);
    for (const QLatin1String folder : {QLatin1String("/printers/"), QLatin1String("/classes/")})
        if (path.startsWith(folder))
            return path.mid(folder.size());
    return {};
}

bool isOwnJob(const QString &owner)
{
    return owner.compare(QString::fromUtf8(cupsUser()), Qt::CaseInsensitive) == 0;
}

bool isIncomplete(ipp_attribute_t *reasons)
{
    return reasons && ippContainsString(reasons, "job-incoming");
}

Found findHeldJob(ServerConnection &server, const JobName &name)
{
    const ServerAnswer answer = server.ask(jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, name));
    if (!answer.isGood())
        return Found::failure(problemOf(answer, name.id));
    ipp_t *message = answer.message.get();
    HeldJob job;
    job.id = name.id;
    job.queue = queueOfUri(textOf(message, "job-printer-uri"));
    if (!name.queue.isEmpty() && job.queue != name.queue)
        return Found::failure(
            tr("Job %1 was sent to the printer “%2”, not to “%3”.").arg(name.id).arg(job.queue, name.queue));
    // The server hides the owner of others' jobs where it is set up so.
    if (!isOwnJob(textOf(message, "job-originating-user-name")))
        return Found::failure(tr("Job %1 belongs to somebody else. Only its owner can print it.").arg(name.id));
    if (const QString problem = problemWithState(numberOf(message, "job-state", 0), name.id); !problem.isEmpty())
        return Found::failure(problem);
    if (isIncomplete(ippFindAttribute(message, "job-state-reasons", IPP_TAG_ZERO)))
        return Found::failure(tr("Job %1 is still being sent. Try again in a moment.").arg(name.id));
    job.title = textOf(message, "job-name");
    job.documents = numberOf(message, "number-of-documents", 0);
    if (job.documents == 1)
        job.documentName = textOf(message, "document-name-supplied");
    if (const int seconds = numberOf(message, "time-at-creation", 0); seconds > 0)
        job.sent = QDateTime::fromSecsSinceEpoch(seconds);
    job.attributes = jobAttributes(message);
    return job;
}

Found findHeldJob(const JobName &name, CallControl &control)
{
    Result<ServerConnection> server = ServerConnection::open(control);
    return server ? findHeldJob(server.value(), name) : Found::failure(server.error());
}

} // namespace bv
