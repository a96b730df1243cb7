// SPDX-License-Identifier: GPL-2.0-or-later
// From a request to a session.
#include "queues/SessionStart.h"

#include "queues/BackgroundCall.h"
#include "queues/PrintServer.h"
#include "queues/TicketJson.h"

namespace bv {

namespace {

using Session = Result<std::unique_ptr<QueueSession>>;

Session sessionWithoutServer(const SessionRequest &request)
{
    Result<PpdFile> ppd = PpdFile::open(request.ppd);
    if (!ppd)
        return Session::failure(ppd.error());
    QueueIdentity identity{request.queueWithoutServer(), std::nullopt, !request.noPrinter};
    if (!request.deviceUri.isEmpty())
        identity.deviceUri = request.deviceUri;
    return std::make_unique<QueueSession>(std::move(identity), std::move(ppd.value()));
}

// A queue and its PPD, as the print server tells them.
struct FoundQueue
{
    PrintQueue queue;
    PpdText ppd;
};

Result<FoundQueue> findQueue(const QString &name, CallControl &control)
{
    using Found = Result<FoundQueue>;
    Result<PrintQueue> queue = PrintServer::queue(name, control);
    if (!queue)
        return Found::failure(queue.error());
    Result<PpdText> ppd = PrintServer::ppd(queue.value().name, control);
    if (!ppd)
        return Found::failure(ppd.error());
    return FoundQueue{std::move(queue.value()), std::move(ppd.value())};
}

Session sessionOfQueue(const SessionRequest &request)
{
    using Found = Result<FoundQueue>;
    const Found found =
        callWithLimit<Found>([name = request.queue](CallControl &control) { return findQueue(name, control); },
                             Found::failure(noAnswerSentence()));
    if (!found)
        return Session::failure(found.error());
    Result<PpdFile> ppd = PpdFile::open(found.value().ppd);
    if (!ppd)
        return Session::failure(ppd.error());
    QueueIdentity identity{found.value().queue.name, found.value().queue.deviceUri, true};
    if (!request.deviceUri.isEmpty())
        identity.deviceUri = request.deviceUri;
    return std::make_unique<QueueSession>(std::move(identity), std::move(ppd.value()));
}

} // namespace

Session startSession(const SessionRequest &request)
{
    // The ticket is read first, so that a faulty one is reported before a server is contacted.
    PrintDictionary ticket;
    if (!request.ticket.isEmpty()) {
        Result<PrintDictionary> read = ticketFromFile(request.ticket);
        if (!read)
            return Session::failure(read.error());
        ticket = std::move(read.value());
    }
    Session session = request.usesServer() ? sessionOfQueue(request) : sessionWithoutServer(request);
    if (session)
        session.value()->ticket().replace(ticket);
    return session;
}

} // namespace bv
