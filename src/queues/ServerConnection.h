// SPDX-License-Identifier: GPL-2.0-or-later
// A connection to the print server on which nothing lasts for ever: connecting, each answer and the whole call have
// their limits, answers have a size, and a canceled call ends at once.
#pragma once

#include "platform/Result.h"
#include "queues/CallControl.h"

#include <QByteArray>
#include <cups/cups.h>
#include <functional>
#include <memory>
#include <span>

namespace bv {

struct IppDelete
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppMessage = std::unique_ptr<ipp_t, IppDelete>;

// Makes a request that names the queue and the user.
IppMessage queueRequest(ipp_op_t operation, const QString &queue);

// What became of a request. Without a message the server did not answer, or with something that is no answer.
struct ServerAnswer
{
    IppMessage message;
    QString problem; // without a message: a sentence for the user

    // The server says that it did what was asked.
    bool isGood() const { return message && status() <= IPP_STATUS_OK_CONFLICTING; }
    // The server said no. status() says why.
    bool isRefusal() const { return message && !isGood(); }
    ipp_status_t status() const { return message ? ippGetStatusCode(message.get()) : IPP_STATUS_ERROR_INTERNAL; }
    // The server's own words about the status, or those of libcups. Without a full stop at the end.
    QString words() const;
};

// The server is the one that libcups names (CUPS_SERVER, client.conf). Belongs to one thread.
class ServerConnection
{
public:
    static constexpr std::chrono::milliseconds kConnectLimit{5000};
    // For one answer, and for any step in which no byte comes or goes.
    static constexpr std::chrono::milliseconds kAnswerLimit{10000};

    // The control is borrowed.
    static Result<ServerConnection> open(CallControl &control);
    ServerConnection(ServerConnection &&) noexcept;
    ServerConnection &operator=(ServerConnection &&) noexcept;
    ~ServerConnection();

    // A canceled call goes on for this long before its answer is given up. For requests whose answer must be known.
    void setPatience(std::chrono::milliseconds patience);

    // Sends a request and reads the answer.
    ServerAnswer ask(const IppMessage &request);

    // The same for a request that is followed by a document of `size` bytes, at least 1. beginDocument() returns a
    // sentence for the user on a failure. sendBytes() takes `size` bytes in all; it returns false when the server takes
    // no more, or the call is over. endDocument() waits for the answer once all bytes are sent. Before that it does not
    // wait, and tells only why the server takes no more, if it said so; the document is then given up with the
    // connection, and no part of it is printed.
    QString beginDocument(const IppMessage &request, qint64 size);
    bool sendBytes(std::span<const char> bytes);
    bool isDocumentSent() const { return m_documentLeft == 0; }
    ServerAnswer endDocument();

    // The same for a request whose answer is followed by a document: writes that to a descriptor. A document above
    // `maximum` bytes is a problem, and so is one that is cut off; what was written of it is then of no use.
    ServerAnswer askForDocument(const IppMessage &request, int descriptor, qint64 maximum);

    // The file at a path of the server, if it has at most `maximum` bytes.
    struct Download
    {
        enum class Outcome { Had, Missing, TooLarge, Failed };
        Outcome outcome = Outcome::Failed;
        QByteArray bytes;
        QString problem; // when it failed: a sentence for the user
    };
    Download download(const QByteArray &path, qsizetype maximum);

private:
    struct Limits;
    struct HttpClose
    {
        void operator()(http_t *http) const { httpClose(http); }
    };

    ServerConnection(http_t *http, std::unique_ptr<Limits> limits);
    http_status_t awaitStatus();
    enum class Body { Whole, Broken, TooLarge };
    // Appends the body of the answer to *bytes. Broken: it is cut off or too slow.
    Body readBody(qsizetype maximum, QByteArray *bytes);
    ServerAnswer readAnswer(http_status_t status, int requestId);
    // Sends a request and has the answer read, once more after logging in.
    ServerAnswer exchange(const IppMessage &request, const std::function<ServerAnswer(http_status_t)> &read);
    ServerAnswer readDocument(http_status_t status, int requestId, int descriptor, qint64 maximum);
    // Logs in with what needs no question (a certificate, the user at the other end of a local socket), and connects
    // anew. False when that is not possible.
    bool logIn(const char *method, const char *path);
    QString complaint(http_status_t status) const;

    std::unique_ptr<Limits> m_limits; // libcups has its address
    std::unique_ptr<http_t, HttpClose> m_http;
    int m_documentRequest = 0;
    qint64 m_documentLeft = 0; // bytes
};

// The sentence for a server that does not answer.
QString noAnswerSentence();

} // namespace bv
