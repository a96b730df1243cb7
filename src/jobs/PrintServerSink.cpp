// SPDX-License-Identifier: GPL-2.0-or-later
// Sends jobs over IPP with libcups (RFC 8011: Create-Job, Send-Document, Cancel-Job).
#include "jobs/PrintServerSink.h"

#include "jobs/DocumentReader.h"
#include "queues/BackgroundCall.h"
#include "queues/ServerConnection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
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
    {IPP_STATUS_ERROR_NOT_FOUND,                     "The print server has no queue %1 any more; choose another one."},
    {IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED, "The queue %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that."},
    {IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS,            "The queue %1 takes no jobs just now; choose another one, or have it accept jobs again."},
    {IPP_STATUS_ERROR_FORBIDDEN,                     "You may not print on the queue %1; ask who looks after it."},
    {IPP_STATUS_ERROR_NOT_AUTHORIZED,                "You may not print on the queue %1; ask who looks after it."},
    {IPP_STATUS_ERROR_NOT_AUTHENTICATED,             "You may not print on the queue %1 without logging in to the print server."},
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
    return tr("The queue %1 refused the job: %2.").arg(queue, words);
}

// The sentence for an answer that is not good.
QString problemOf(const ServerAnswer &answer, const QString &queue, const QString &document)
{
    return answer.message ? refusal(answer.status(), answer.words(), queue, document) : answer.problem;
}

// True if libcups does not know the option's type. It then sends the value as a name.
bool isUntyped(const QByteArray &keyword)
{
    const IppMessage probe(ippNew());
    char value[] = "x";
    QByteArray name = keyword;
    cups_option_t option = {name.data(), value};
    cupsEncodeOptions2(probe.get(), 1, &option, IPP_TAG_JOB);
    ipp_attribute_t *attribute = ippFindAttribute(probe.get(), keyword.constData(), IPP_TAG_ZERO);
    return attribute && ippGetValueTag(attribute) == IPP_TAG_NAME;
}

// True if the value survives being parsed again on the server (cupsParseOptions). There, a brace at the beginning opens
// a collection. If the last character does not close it, it swallows the options that follow.
bool isCarried(const QString &value)
{
    if (!value.startsWith(u'{'))
        return true;
    qsizetype depth = 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        depth += value[i] == u'{' ? 1 : value[i] == u'}' ? -1 : 0;
        if (depth == 0)
            return i + 1 == value.size();
    }
    return false;
}

// True if the keyword survives the same parser. A blank or an equals sign would end it, and the rest would be read as
// other options.
bool isCarriedKeyword(const QString &keyword)
{
    return std::none_of(keyword.begin(), keyword.end(),
                        [](QChar character) { return character.isSpace() || character == u'='; });
}

// Lets libcups choose the type: integers, keywords and ranges for standard options, a boolean for True and False. But
// libcups splits values of unknown options at quotes, commas and a leading brace, so these are added whole.
void addOption(ipp_t *request, const QString &keyword, const QString &value)
{
    QByteArray name = keyword.toUtf8();
    QByteArray text = value.toUtf8();
    // An attribute without a name would be read as another value of the previous one (RFC 8010, 3.1.5).
    if (name.isEmpty())
        return;
    const bool isTruth =
        text.compare("true", Qt::CaseInsensitive) == 0 || text.compare("false", Qt::CaseInsensitive) == 0;
    if (!isTruth && isUntyped(name)) {
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.constData(), nullptr, text.constData());
        return;
    }
    cups_option_t option = {name.data(), text.data()};
    cupsEncodeOptions2(request, 1, &option, IPP_TAG_JOB);
}

// A sentence for the user when the queue accepts no jobs or no longer exists. A stopped queue accepts jobs and keeps
// them until it is resumed.
QString checkQueue(ServerConnection &server, const QString &queue)
{
    const IppMessage request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-is-accepting-jobs");
    const ServerAnswer answer = server.ask(request);
    if (!answer.isGood())
        return problemOf(answer, queue, tr("the document"));
    ipp_attribute_t *accepts = ippFindAttribute(answer.message.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    return accepts && !ippGetBoolean(accepts, 0)
               ? refusal(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, QString(), queue, QString())
               : QString();
}

// Creates a job without documents. Returns its number, or a sentence for the user.
Result<int> createJob(ServerConnection &server, const JobRequest &job)
{
    const IppMessage request = queueRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, job.title.toUtf8().constData());
    for (const auto &[keyword, value] : job.options)
        addOption(request.get(), keyword, value);
    server.setPatience(kPatience);
    const ServerAnswer answer = server.ask(request);
    server.setPatience(std::chrono::milliseconds(0));
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
    if (const QString error = server.beginDocument(request); !error.isEmpty())
        return {End::Lost, {}};
    qint64 sent = 0;
    const QString error = document.value().readAll(control, [&](std::span<const char> bytes) {
        const bool taken = server.sendBytes(bytes);
        sent += taken ? qint64(bytes.size()) : 0;
        return taken;
    });
    if (!error.isEmpty())
        return {End::Failed, error};
    const ServerAnswer answer = server.endDocument();
    if (answer.isRefusal())
        return {End::Failed, problemOf(answer, job.queue, name)};
    if (sent != document.value().size())
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
    const QString look = u' ' + tr("Look at the queue before printing again.");
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
    return tr("The print server did not confirm the job. Look at the queue before printing again.");
}

Sent PrintServerSink::submit(const JobRequest &request, CallControl &control) const
{
    for (const auto &[keyword, value] : request.options) {
        if (!isCarriedKeyword(keyword))
            return Sent::failure(tr("The print server cannot carry an option of the name “%1”.").arg(keyword));
        if (!isCarried(value))
            return Sent::failure(tr("The print server cannot carry the value %1 of the option %2; choose another one.")
                                     .arg(value, keyword));
    }
    allowForDocuments(control, request.documents);
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Sent::failure(server.error());
    if (const QString error = checkQueue(server.value(), request.queue); !error.isEmpty())
        return Sent::failure(error);
    const UnfinishedWork untilTheJobIsWhole;
    const Result<int> job = createJob(server.value(), request);
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
