// SPDX-License-Identifier: GPL-2.0-or-later
// Requests over HTTP with libcups, each step under a limit.
#include "queues/ServerConnection.h"

#include "platform/FileDescriptor.h"
#include "queues/IppNesting.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <string_view>

namespace bv {

namespace {

using std::chrono::milliseconds;
using Clock = CallControl::Clock;

constexpr double kPollSeconds = 0.1; // libcups asks at least this often whether to go on waiting
constexpr qsizetype kLargestAnswer = qsizetype{32} * 1024 * 1024;
constexpr qsizetype kLargestHead = qsizetype{1024} * 1024; // of an answer that a document follows
constexpr int kMostTries = 3;                              // of logging in

QString tr(const char *text)
{
    return QCoreApplication::translate("ServerConnection", text);
}

QString serverName()
{
    return QString::fromUtf8(cupsServer());
}

// libcups would ask for a password at the terminal.
const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

// A message in memory, as libcups reads it.
struct Reader
{
    const QByteArray &bytes;
    qsizetype position = 0;

    static ssize_t read(void *context, ipp_uchar_t *buffer, size_t count)
    {
        auto *reader = static_cast<Reader *>(context);
        const qsizetype given = std::min<qsizetype>(qsizetype(count), reader->bytes.size() - reader->position);
        std::memcpy(buffer, reader->bytes.constData() + reader->position, size_t(given));
        reader->position += given;
        return given;
    }
};

IppMessage parse(const QByteArray &bytes)
{
    if (!isReadableIpp(bytes))
        return {};
    Reader reader{bytes};
    IppMessage message(ippNew());
    return ippReadIO(&reader, &Reader::read, 1, nullptr, message.get()) == IPP_STATE_DATA ? std::move(message)
                                                                                          : IppMessage();
}

} // namespace

// When to give up. libcups asks whenever it has waited a little.
struct ServerConnection::Limits
{
    explicit Limits(CallControl &callControl) : control(callControl) {}

    CallControl &control;
    milliseconds patience{0};
    Clock::time_point answerBy = Clock::now();
    std::optional<Clock::time_point> canceledAt;

    void beginStep() { answerBy = Clock::now() + kAnswerLimit; }
    bool isOver()
    {
        const Clock::time_point now = Clock::now();
        if (control.isCancelled() && !canceledAt)
            canceledAt = now;
        return now >= answerBy || now >= control.deadline() || (canceledAt && now >= *canceledAt + patience);
    }
    static int mayGoOn(http_t *, void *data) { return static_cast<Limits *>(data)->isOver() ? 0 : 1; }
};

QString noAnswerSentence()
{
    return tr("The print server %1 does not answer; check that it is running.").arg(serverName());
}

IppMessage queueRequest(ipp_op_t operation, const QString &queue)
{
    char uri[HTTP_MAX_URI] = "";
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0, "/printers/%s",
                     queue.toUtf8().constData());
    IppMessage request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QString ServerAnswer::words() const
{
    ipp_attribute_t *said = message ? ippFindAttribute(message.get(), "status-message", IPP_TAG_TEXT) : nullptr;
    const char *text = said ? ippGetString(said, 0, nullptr) : nullptr;
    QString words = QString::fromUtf8(text ? text : ippErrorString(status())).simplified();
    if (words.endsWith(u'.'))
        words.chop(1);
    return words;
}

Result<ServerConnection> ServerConnection::open(CallControl &control)
{
    cupsSetPasswordCB2(noPassword, nullptr);
    http_t *http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                int(kConnectLimit.count()), control.cancelWord());
    if (!http)
        return Result<ServerConnection>::failure(noAnswerSentence());
    return ServerConnection(http, std::make_unique<Limits>(control));
}

ServerConnection::ServerConnection(http_t *http, std::unique_ptr<Limits> limits)
    : m_limits(std::move(limits)), m_http(http)
{
    httpSetTimeout(http, kPollSeconds, &Limits::mayGoOn, m_limits.get());
    setPatience(milliseconds(0));
}

ServerConnection::ServerConnection(ServerConnection &&) noexcept = default;

ServerConnection &ServerConnection::operator=(ServerConnection &&other) noexcept
{
    m_http = std::move(other.m_http); // before the limits that it uses
    m_limits = std::move(other.m_limits);
    return *this;
}

ServerConnection::~ServerConnection()
{
    if (m_limits)
        m_limits->control.watchSocket(-1);
}

void ServerConnection::setPatience(milliseconds patience)
{
    m_limits->patience = patience;
    m_limits->control.watchSocket(patience.count() > 0 ? -1 : httpGetFd(m_http.get()));
}

ServerAnswer ServerConnection::exchange(const IppMessage &request,
                                        const std::function<ServerAnswer(http_status_t)> &read)
{
    ServerAnswer answer;
    for (int tries = 0; tries < kMostTries; ++tries) {
        m_limits->beginStep();
        http_status_t status = cupsSendRequest(m_http.get(), request.get(), "/", ippLength(request.get()));
        if (status == HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK)
            status = awaitStatus();
        answer = read(status);
        if (status != HTTP_STATUS_UNAUTHORIZED || !logIn("POST", "/"))
            break;
    }
    return answer;
}

ServerAnswer ServerConnection::ask(const IppMessage &request)
{
    return exchange(request, [&](http_status_t status) { return readAnswer(status, ippGetRequestId(request.get())); });
}

ServerAnswer ServerConnection::askForDocument(const IppMessage &request, int descriptor, qint64 maximum)
{
    return exchange(request, [&](http_status_t status) {
        return readDocument(status, ippGetRequestId(request.get()), descriptor, maximum);
    });
}

ServerAnswer ServerConnection::readDocument(http_status_t status, int requestId, int descriptor, qint64 maximum)
{
    ServerAnswer answer;
    if (status != HTTP_STATUS_OK) {
        answer.problem = complaint(status);
        return answer;
    }
    answer.problem = tr("The print server %1 broke off its answer.").arg(serverName());
    QByteArray head; // until the message is complete
    qint64 written = 0;
    char part[65536];
    while (!m_limits->isOver()) {
        const ssize_t count = httpRead2(m_http.get(), part, sizeof part);
        if (count < 0 || (count == 0 && httpGetState(m_http.get()) != HTTP_STATE_WAITING))
            break;
        if (count == 0) {
            // The answer to another question is none (RFC 8011, 4.1.2).
            if (answer.message && ippGetRequestId(answer.message.get()) != requestId)
                answer.message.reset();
            if (answer.message)
                answer.problem.clear();
            return answer;
        }
        m_limits->beginStep();
        std::string_view bytes(part, size_t(count));
        if (!answer.message) {
            head.append(part, count);
            const qsizetype size = readableIppSize(head);
            if (size < 0 && head.size() < kLargestHead)
                continue;
            answer.message = size < 0 ? IppMessage() : parse(head.left(size));
            if (!answer.message)
                break;
            bytes = std::string_view(head.constData(), size_t(head.size())).substr(size_t(size));
        }
        written += qint64(bytes.size());
        if (written > maximum)
            answer.problem = tr("The document is too large.");
        if (written > maximum || !writeAll(descriptor, bytes))
            break;
    }
    answer.message.reset();
    return answer;
}

QString ServerConnection::beginDocument(const IppMessage &request, qint64 size)
{
    m_limits->beginStep();
    m_documentRequest = ippGetRequestId(request.get());
    m_documentLeft = size;
    // With a length, not in chunks: cupsd takes a connection that ends between the head of a chunk and its bytes for
    // the end of the document, and prints what it has.
    const http_status_t status =
        cupsSendRequest(m_http.get(), request.get(), "/", ippLength(request.get()) + size_t(size));
    return status == HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK ? QString() : complaint(status);
}

bool ServerConnection::sendBytes(std::span<const char> bytes)
{
    if (m_limits->isOver())
        return false;
    m_limits->beginStep();
    const qint64 left = m_documentLeft - qint64(bytes.size());
    const http_status_t status = cupsWriteRequestData(m_http.get(), bytes.data(), bytes.size());
    // The answer may be there as soon as the last byte is.
    if (status != HTTP_STATUS_CONTINUE && (status != HTTP_STATUS_OK || left > 0))
        return false;
    m_documentLeft = left;
    return true;
}

ServerAnswer ServerConnection::endDocument()
{
    m_limits->beginStep();
    http_status_t status = httpGetStatus(m_http.get());
    if (status == HTTP_STATUS_CONTINUE && isDocumentSent())
        status = awaitStatus();
    return readAnswer(status, m_documentRequest);
}

http_status_t ServerConnection::awaitStatus()
{
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE && !m_limits->isOver())
        status = httpUpdate(m_http.get());
    return status;
}

ServerConnection::Body ServerConnection::readBody(qsizetype maximum, QByteArray *bytes)
{
    char part[65536];
    while (!m_limits->isOver()) {
        const ssize_t count = httpRead2(m_http.get(), part, sizeof part);
        // After a whole answer the connection is ready for the next request.
        if (count <= 0)
            return count == 0 && httpGetState(m_http.get()) == HTTP_STATE_WAITING ? Body::Whole : Body::Broken;
        bytes->append(part, count);
        if (bytes->size() > maximum)
            return Body::TooLarge;
    }
    return Body::Broken;
}

ServerAnswer ServerConnection::readAnswer(http_status_t status, int requestId)
{
    ServerAnswer answer;
    if (status != HTTP_STATUS_OK) {
        answer.problem = complaint(status);
        return answer;
    }
    QByteArray body;
    if (readBody(kLargestAnswer, &body) == Body::Whole)
        answer.message = parse(body);
    // The answer to another question is none (RFC 8011, 4.1.2).
    if (answer.message && ippGetRequestId(answer.message.get()) != requestId)
        answer.message.reset();
    if (!answer.message)
        answer.problem = m_limits->isOver()
                             ? noAnswerSentence()
                             : tr("The print server %1 gave an answer that cannot be read.").arg(serverName());
    return answer;
}

ServerConnection::Download ServerConnection::download(const QByteArray &path, qsizetype maximum)
{
    using Outcome = Download::Outcome;
    Download file;
    for (int tries = 0; tries < kMostTries; ++tries) {
        m_limits->beginStep();
        httpClearFields(m_http.get());
        if (const char *login = httpGetAuthString(m_http.get()))
            httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, login);
        const http_status_t status = httpGet(m_http.get(), path.constData()) == 0 ? awaitStatus() : HTTP_STATUS_ERROR;
        if (status == HTTP_STATUS_UNAUTHORIZED && logIn("GET", path.constData()))
            continue;
        if (status == HTTP_STATUS_NOT_FOUND) {
            file.outcome = Outcome::Missing;
            return file;
        }
        if (status != HTTP_STATUS_OK) {
            file.problem = complaint(status);
            return file;
        }
        // A file may take longer than an answer.
        m_limits->answerBy = m_limits->control.deadline();
        const Body body = readBody(maximum, &file.bytes);
        if (body == Body::Broken)
            file.problem = m_limits->isOver() ? noAnswerSentence()
                                              : tr("The print server %1 broke off its answer.").arg(serverName());
        else
            file.outcome = body == Body::Whole ? Outcome::Had : Outcome::TooLarge;
        return file;
    }
    file.problem = complaint(HTTP_STATUS_UNAUTHORIZED);
    return file;
}

bool ServerConnection::logIn(const char *method, const char *path)
{
    return !m_limits->isOver() && cupsDoAuthentication(m_http.get(), method, path) == 0 &&
           httpReconnect2(m_http.get(), int(kConnectLimit.count()), m_limits->control.cancelWord()) == 0;
}

QString ServerConnection::complaint(http_status_t status) const
{
    switch (status) {
    case HTTP_STATUS_ERROR:
    case HTTP_STATUS_CONTINUE:
        return noAnswerSentence();
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_FORBIDDEN:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return tr("The print server %1 does not let you in; ask who looks after it.").arg(serverName());
    default:
        return tr("The print server %1 refuses to answer: %2.")
            .arg(serverName(), QString::fromUtf8(httpStatus(status)));
    }
}

} // namespace bv
