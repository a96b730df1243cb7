// SPDX-License-Identifier: GPL-2.0-or-later
// Sends jobs over IPP with libcups (RFC 8011: Create-Job, Send-Document, Cancel-Job).
#include "jobs/PrintServerSink.h"

#include "queues/PrintServer.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PrintServerSink", text);
}

using Sent = Result<std::optional<int>>;

struct IppDelete
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppMessage = std::unique_ptr<ipp_t, IppDelete>;

// Messages for the user when the server refuses. %1 is the queue, %2 the document.
struct Refusal
{
    ipp_status_t status;
    const char *sentence;
};

// clang-format off
constexpr std::array<Refusal, 7> kRefusals = {{
    {IPP_STATUS_ERROR_NOT_FOUND,                     "The print server has no queue %1 any more; choose another one."},
    {IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED, "The queue %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that."},
    {IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS,            "The queue %1 takes no jobs just now; choose another one, or have it accept jobs again."},
    {IPP_STATUS_ERROR_FORBIDDEN,                     "You may not print on the queue %1; ask who looks after it."},
    {IPP_STATUS_ERROR_NOT_AUTHORIZED,                "You may not print on the queue %1; ask who looks after it."},
    {IPP_STATUS_ERROR_NOT_AUTHENTICATED,             "You may not print on the queue %1 without logging in to the print server."},
    {IPP_STATUS_ERROR_SERVICE_UNAVAILABLE,           "The connection to the print server was lost, and %2 was not printed; check that it is running and print again."},
}};
// clang-format on

QString refusal(ipp_status_t status, const QString &queue, const QString &document)
{
    for (const Refusal &row : kRefusals)
        if (row.status == status)
            return tr(row.sentence).arg(queue).replace(QStringLiteral("%2"), document);
    QString words = QString::fromUtf8(cupsLastErrorString()).trimmed();
    if (words.endsWith(u'.'))
        words.chop(1);
    return tr("The queue %1 refused the job: %2.").arg(queue, words);
}

QByteArray printerUri(const QString &queue)
{
    char uri[HTTP_MAX_URI] = "";
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/printers/%s",
                     queue.toUtf8().constData());
    return uri;
}

ipp_t *newRequest(ipp_op_t operation, const QString &queue)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, printerUri(queue).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
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
QString checkQueue(http_t *http, const QString &queue)
{
    ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-is-accepting-jobs");
    const IppMessage response(cupsDoRequest(http, request, "/"));
    if (cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return refusal(cupsLastError(), queue, tr("the document"));
    ipp_attribute_t *accepts = ippFindAttribute(response.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    return accepts && !ippGetBoolean(accepts, 0) ? refusal(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, queue, QString())
                                                 : QString();
}

// Creates a job without documents. Returns its number, or a sentence for the user.
Result<int> createJob(http_t *http, const JobRequest &job)
{
    ipp_t *request = newRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, job.title.toUtf8().constData());
    for (const auto &[keyword, value] : job.options)
        addOption(request, keyword, value);
    const IppMessage response(cupsDoRequest(http, request, "/"));
    if (cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return Result<int>::failure(refusal(cupsLastError(), job.queue, job.title));
    ipp_attribute_t *number = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    if (!number)
        return Result<int>::failure(tr("The print server gave the job no number."));
    return ippGetInteger(number, 0);
}

// Sends one document. Returns a sentence for the user on a failure.
QString sendDocument(http_t *http, const JobRequest &job, int number, const QString &path, bool isLast)
{
    QFile file(path);
    const QString name = QFileInfo(path).fileName();
    if (!file.open(QIODevice::ReadOnly))
        return tr("The document %1 cannot be read: %2.").arg(path, file.errorString());
    // For an empty file the server would only say that there is no file.
    if (file.size() == 0)
        return tr("The document %1 is empty.").arg(path);
    const QByteArray queue = job.queue.toUtf8();
    http_status_t status =
        cupsStartDocument(http, queue.constData(), number, name.toUtf8().constData(), CUPS_FORMAT_AUTO, isLast ? 1 : 0);
    char bytes[65536];
    qint64 count = 0;
    while (status == HTTP_STATUS_CONTINUE && (count = file.read(bytes, sizeof bytes)) > 0)
        status = cupsWriteRequestData(http, bytes, static_cast<size_t>(count));
    const ipp_status_t answer = cupsFinishDocument(http, queue.constData());
    if (count < 0)
        return tr("The document %1 cannot be read: %2.").arg(path, file.errorString());
    if (status != HTTP_STATUS_CONTINUE && answer <= IPP_STATUS_OK_CONFLICTING)
        return refusal(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE, job.queue, name);
    return answer > IPP_STATUS_OK_CONFLICTING ? refusal(answer, job.queue, name) : QString();
}

// Uses a new connection, since the job's own one may be broken.
void cancelJob(const QString &queue, int number)
{
    if (const Result<HttpConnection> http = PrintServer::connect())
        cupsCancelJob2(http.value().get(), queue.toUtf8().constData(), number, 0);
}

} // namespace

Result<std::optional<int>> PrintServerSink::submit(const JobRequest &request)
{
    for (const auto &[keyword, value] : request.options) {
        if (!isCarriedKeyword(keyword))
            return Sent::failure(tr("The print server cannot carry an option of the name “%1”.").arg(keyword));
        if (!isCarried(value))
            return Sent::failure(tr("The print server cannot carry the value %1 of the option %2; choose another one.")
                                     .arg(value, keyword));
    }
    Result<HttpConnection> connection = PrintServer::connect();
    if (!connection)
        return Sent::failure(connection.error());
    http_t *http = connection.value().get();
    if (const QString error = checkQueue(http, request.queue); !error.isEmpty())
        return Sent::failure(error);
    const Result<int> job = createJob(http, request);
    if (!job)
        return Sent::failure(job.error());
    for (qsizetype i = 0; i < request.documents.size(); ++i) {
        const QString error =
            sendDocument(http, request, job.value(), request.documents[i], i + 1 == request.documents.size());
        if (error.isEmpty())
            continue;
        // The job exists on the server already and would wait for its documents for ever.
        cancelJob(request.queue, job.value());
        return Sent::failure(error);
    }
    return std::optional<int>(job.value());
}

} // namespace bv
