// SPDX-License-Identifier: GPL-2.0-or-later
// From a request to a session.
#include "queues/SessionStart.h"

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

Session sessionOfQueue(const SessionRequest &request)
{
    Result<PrintQueue> queue = PrintServer::queue(request.queue);
    if (!queue)
        return Session::failure(queue.error());
    Result<PpdFile> ppd = PrintServer::ppd(queue.value().name);
    if (!ppd)
        return Session::failure(ppd.error());
    QueueIdentity identity{queue.value().name, queue.value().deviceUri, true};
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
