// SPDX-License-Identifier: GPL-2.0-or-later
// Sends jobs over IPP with libcups (RFC 8011: Create-Job, Send-Document, Cancel-Job).
#include "jobs/PrintServerSink.h"

#include "jobs/DocumentReader.h"
#include "jobs/OptionEncoding.h"
#include "queues/BackgroundCall.h"
#include "queues/CancelAtEnd.h"
#include "queues/ServerConnection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <array>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PrintServerSink", text);
}

using Sent = Result<SentJob>;

// A canceled call waits this long for the number of a job that is just being created, so that it can be canceled.
constexpr std::chrono::milliseconds kPatience{1000};
// Telling the server to cancel a job takes at most this long.
constexpr std::chrono::milliseconds kCancelLimit{3000};

// Messages for the user when the server refuses. %1 is the queue, %2 the document.
struct Refusal
{
    ipp_status_t status;
    const char *sentence;
};

// clang-format off
constexpr std::array<Refusal, 6> kRefusals = {{
    {IPP_STATUS_ERROR_NOT_FOUND,                     QT_TRANSLATE_NOOP("PrintServerSink", "The print server has no printer %1 any more; choose another one.")},
    {IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED, QT_TRANSLATE_NOOP("PrintServerSink", "The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.")},
    {IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS,            QT_TRANSLATE_NOOP("PrintServerSink", "The printer %1 takes no jobs just now; choose another one, or ask who looks after it.")},
    {IPP_STATUS_ERROR_FORBIDDEN,                     QT_TRANSLATE_NOOP("PrintServerSink", "You may not print on the printer %1; ask who looks after it.")},
    {IPP_STATUS_ERROR_NOT_AUTHORIZED,                QT_TRANSLATE_NOOP("PrintServerSink", "You may not print on the printer %1; ask who looks after it.")},
    {IPP_STATUS_ERROR_NOT_AUTHENTICATED,             QT_TRANSLATE_NOOP("PrintServerSink", "You may not print on the printer %1 without logging in to the print server; ask who looks after it.")},
}};
// clang-format on

QString refusal(ipp_status_t status, const QString &words, const QString &queue, const QString &document)
{
    for (const Refusal &row : kRefusals) {
        if (row.status != status)
            continue;
        const QString sentence = tr(row.sentence);
        return sentence.contains(QStringLiteral("%2")) ? sentence.arg(queue, document) : sentence.arg(queue);
    }
    return tr("The printer %1 refused the job: %2.").arg(queue, words);
}

// The sentence for an answer that is not good.
QString problemOf(const ServerAnswer &answer, const QString &queue, const QString &document)
{
    return answer.message ? refusal(answer.status(), answer.words(), queue, document) : answer.problem;
}

struct QueueState
{
    bool holdsJobs = false; // every job that does not say otherwise, until somebody releases it
};

// Returns a sentence for the user when the queue accepts no jobs or no longer exists. A stopped queue accepts jobs and
// keeps them until it is resumed.
Result<QueueState> checkQueue(ServerConnection &server, const QString &queue)
{
    using Checked = Result<QueueState>;
    const IppMessage request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    constexpr std::array<const char *, 2> kAsked = {"printer-is-accepting-jobs", "job-hold-until-default"};
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(kAsked.size()),
                  nullptr, kAsked.data());
    const ServerAnswer answer = server.ask(request);
    if (!answer.isGood())
        return Checked::failure(problemOf(answer, queue, tr("the document")));
    ipp_attribute_t *accepts = ippFindAttribute(answer.message.get(), kAsked[0], IPP_TAG_BOOLEAN);
    if (accepts && !ippGetBoolean(accepts, 0))
        return Checked::failure(refusal(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, QString(), queue, QString()));
    ipp_attribute_t *hold = ippFindAttribute(answer.message.get(), kAsked[1], IPP_TAG_ZERO);
    const char *until = hold ? ippGetString(hold, 0, nullptr) : nullptr;
    return QueueState{qstrcmp(until, "indefinite") == 0};
}

// Creates a job without documents. Returns its number, or a sentence for the user.
Result<int> createJob(ServerConnection &server, const JobRequest &job, const QueueState &queue)
{
    const IppMessage request = queueRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, job.title.toUtf8().constData());
    for (const auto &[keyword, value] : job.options)
        addJobOption(request.get(), keyword, value);
    // Such a queue asks about each job before it prints. Who prints with bvprint has been asked.
    const QString hold = QStringLiteral("job-hold-until");
    if (queue.holdsJobs && job.options.count(hold) == 0)
        addJobOption(request.get(), hold, QStringLiteral("no-hold"));
    server.setPatience(kPatience);
    const ServerAnswer answer = server.ask(request);
    server.setPatience(std::chrono::milliseconds(0));
    // The server may have the job all the same. Without its documents it is given up there after a while.
    if (!answer.message)
        return Result<int>::failure(answer.problem + u' ' + tr("Nothing was printed."));
    if (!answer.isGood())
        return Result<int>::failure(problemOf(answer, job.queue, job.title));
    ipp_attribute_t *number = ippFindAttribute(answer.message.get(), "job-id", IPP_TAG_INTEGER);
    if (!number)
        return Result<int>::failure(tr("The print server gave the job no number."));
    return ippGetInteger(number, 0);
}

// How sending a document ended.
struct Sending
{
    enum class End {
        Confirmed,
        Failed,      // `sentence` says why
        Lost,        // the connection ended before the document did
        Unconfirmed, // the server got all of it and did not say what became of it
    };
    End end = End::Failed;
    QString sentence;
};

Sending sendDocument(ServerConnection &server, CallControl &control, const JobRequest &job, int number, qsizetype index)
{
    using End = Sending::End;
    const QString path = job.documents[index];
    const QString name = QFileInfo(path).fileName();
    Result<DocumentReader> document = DocumentReader::open(path);
    if (!document)
        return {End::Failed, document.error()};
    const IppMessage request = queueRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", number);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr, name.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr, CUPS_FORMAT_AUTO);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", index + 1 == job.documents.size());
    if (const QString error = server.beginDocument(request, document.value().size()); !error.isEmpty())
        return {End::Lost, {}};
    const QString error =
        document.value().readAll(control, [&server](std::span<const char> bytes) { return server.sendBytes(bytes); });
    if (!error.isEmpty())
        return {End::Failed, error};
    const ServerAnswer answer = server.endDocument();
    if (answer.isRefusal())
        return {End::Failed, problemOf(answer, job.queue, name)};
    if (!server.isDocumentSent())
        return {End::Lost, {}};
    return {answer.isGood() ? End::Confirmed : End::Unconfirmed, {}};
}

// What the server says to a wish to cancel a job.
enum class Canceling { Done, NoSuchJob, Unknown };

// Uses a new connection, since the job's own one may be broken, and a control of its own, since the job's may be over.
Canceling cancelJob(const QString &queue, int number)
{
    CallControl control(kCancelLimit);
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Canceling::Unknown;
    const IppMessage request = queueRequest(IPP_OP_CANCEL_JOB, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", number);
    const ServerAnswer answer = server.value().ask(request);
    if (answer.isGood())
        return Canceling::Done;
    return answer.message && answer.status() == IPP_STATUS_ERROR_NOT_FOUND ? Canceling::NoSuchJob : Canceling::Unknown;
}

// The sentence for a job that did not get through.
QString failureOf(const Sending &sending, Canceling canceling, bool isStopped, const QString &document)
{
    const QString look = u' ' + tr("Look whether it was printed before printing again.");
    const bool isOpen = canceling == Canceling::Unknown;
    if (isStopped)
        return isOpen ? tr("The job was stopped, but the print server did not confirm that it is canceled.") + look
                      : tr("The job was canceled. Nothing was printed.");
    switch (sending.end) {
    case Sending::End::Confirmed:
        break;
    case Sending::End::Failed:
        return isOpen ? sending.sentence + look : sending.sentence;
    case Sending::End::Lost:
        return isOpen
                   ? tr("The connection to the print server was lost before all of %1 was sent.").arg(document) + look
                   : tr("The connection to the print server was lost, and %1 was not printed; print again.")
                         .arg(document);
    case Sending::End::Unconfirmed: {
        const QString taken = tr("The print server took the document but did not confirm it.");
        // A server forgets jobs that are printed.
        return canceling == Canceling::Done ? taken + u' ' + tr("The job was canceled; print again.") : taken + look;
    }
    }
    return {};
}

} // namespace

QString unconfirmedSentence()
{
    return tr("The print server did not confirm the job. Look whether it was printed before printing again.");
}

Sent PrintServerSink::submit(const JobRequest &request, CallControl &control) const
{
    if (const QString problem = problemWithOptions(request.options); !problem.isEmpty())
        return Sent::failure(problem);
    allowForDocuments(control, request.documents);
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Sent::failure(server.error());
    const Result<QueueState> queue = checkQueue(server.value(), request.queue);
    if (!queue)
        return Sent::failure(queue.error());
    const UnfinishedWork untilTheJobIsWhole;
    const CancelAtEnd endsWithTheProgram(control);
    const Result<int> job = createJob(server.value(), request, queue.value());
    if (!job)
        return Sent::failure(job.error());
    for (qsizetype i = 0; i < request.documents.size(); ++i) {
        Sending sending = sendDocument(server.value(), control, request, job.value(), i);
        if (sending.end == Sending::End::Confirmed && !control.isCancelled())
            continue;
        // Without its last document a job is not complete, whatever became of this one.
        if (sending.end == Sending::End::Unconfirmed && i + 1 < request.documents.size())
            sending.end = Sending::End::Lost;
        // The job exists on the server already and would wait for its documents for ever.
        control.allow(kCancelLimit);
        const Canceling canceling = cancelJob(request.queue, job.value());
        return Sent::failure(
            failureOf(sending, canceling, control.isCancelled(), QFileInfo(request.documents[i]).fileName()));
    }
    return SentJob{job.value(), QString()};
}

} // namespace bv
