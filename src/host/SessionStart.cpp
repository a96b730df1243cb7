// From a command line to a session.
#include "host/SessionStart.h"

#include "host/PrintServer.h"
#include "host/TicketJson.h"

namespace bv {

namespace {

using Session = Result<std::unique_ptr<QueueSession>>;

Session sessionWithoutServer(const CommandLine &line)
{
    Result<PpdFile> ppd = PpdFile::open(line.ppd);
    if (!ppd)
        return Session::failure(ppd.error());
    QueueIdentity identity{line.queueWithoutServer(), std::nullopt, !line.noPrinter};
    if (!line.deviceUri.isEmpty())
        identity.deviceUri = line.deviceUri;
    return std::make_unique<QueueSession>(std::move(identity), std::move(ppd.value()));
}

Session sessionOfQueue(const CommandLine &line)
{
    Result<PrintQueue> queue = PrintServer::queue(line.queue);
    if (!queue)
        return Session::failure(queue.error());
    Result<PpdFile> ppd = PrintServer::ppd(queue.value().name);
    if (!ppd)
        return Session::failure(ppd.error());
    QueueIdentity identity{queue.value().name, queue.value().deviceUri, true};
    if (!line.deviceUri.isEmpty())
        identity.deviceUri = line.deviceUri;
    return std::make_unique<QueueSession>(std::move(identity), std::move(ppd.value()));
}

} // namespace

Session startSession(const CommandLine &commandLine)
{
    // The ticket is read first: it costs nothing, and a wrong one is said before a server is asked.
    PrintDictionary ticket;
    if (!commandLine.ticket.isEmpty()) {
        Result<PrintDictionary> read = ticketFromFile(commandLine.ticket);
        if (!read)
            return Session::failure(read.error());
        ticket = std::move(read.value());
    }
    Session session = commandLine.ppd.isEmpty() ? sessionOfQueue(commandLine) : sessionWithoutServer(commandLine);
    if (session)
        session.value()->ticket().replace(ticket);
    return session;
}

} // namespace bv
