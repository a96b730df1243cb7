// SPDX-License-Identifier: GPL-2.0-or-later
// From a request to a room.
#include "commandline/RoomStart.h"

#include "jobs/PrintJob.h"
#include "presets/PresetStore.h"
#include "queues/BackgroundCall.h"
#include "queues/JobOnlyKeys.h"
#include "queues/QueueSource.h"
#include "queues/TicketJson.h"

#include <algorithm>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("RoomStart", text);
}

// A queue with its PPD.
struct Fetched
{
    PrintQueue queue;
    QueueRoom::Ppds ppds;
};

// `name` is empty for the default queue of the print server.
Result<Fetched> fetch(const QueueSource &source, bool isServer, const QString &name, CallControl &control)
{
    using Outcome = Result<Fetched>;
    Result<PrintQueue> queue = Result<PrintQueue>::failure(QString());
    if (isServer)
        queue = PrintServer::queue(name, control);
    else if (const Result<std::vector<PrintQueue>> only = source.queues(control); only && !only.value().empty())
        queue = only.value().front();
    if (!queue)
        return Outcome::failure(queue.error());
    Result<QueueRoom::Ppds> ppds = QueueRoom::fetch(source, queue.value().name, control);
    return ppds ? Outcome(Fetched{std::move(queue.value()), std::move(ppds.value())}) : Outcome::failure(ppds.error());
}

Result<Fetched> fetchFor(const std::shared_ptr<const QueueSource> &source, const SessionRequest &session,
                         const QString &name)
{
    using Outcome = Result<Fetched>;
    return callWithLimit<Outcome>([source, isServer = session.usesServer(),
                                   name](CallControl &control) { return fetch(*source, isServer, name, control); },
                                  Outcome::failure(noAnswerSentence()));
}

bool hasDictionaries(const PrintDictionary &ticket)
{
    return std::any_of(ticket.entries.begin(), ticket.entries.end(),
                       [](const auto &entry) { return entry.second.dictionary() != nullptr; });
}

// Sets what the choices are at first.
QString fillTicket(StartedRoom &started, StartChoices &choices, const SessionRequest &session,
                   const QueueInstance &wanted, ppd_file_t *ppd)
{
    if (!session.ticket.isEmpty()) {
        const Result<PrintDictionary> ticket = ticketFromFile(session.ticket);
        if (!ticket)
            return ticket.error();
        choices.ticket = ticket.value();
        choices.origin = ChoiceOrigin::Given;
        started.source = StartSource::Ticket;
        const JobOptions all = ticketOptions(ticket.value());
        for (const char *key : {kCopiesKey, kPageRangesKey})
            if (const auto found = all.find(QLatin1String(key)); found != all.end())
                started.attributes.insert(*found);
        removeJobOnlyKeys(&*choices.ticket);
        // A ticket of a panel has the panel's own dictionaries. One that a person or a script wrote has none.
        if (!hasDictionaries(*choices.ticket))
            choices.forPanel = *choices.ticket;
    } else if (session.usesServer()) {
        std::optional<StartChoices> own = choicesOfUser(wanted, ppd);
        if (!own)
            return tr("You have no defaults called “%1”; lpoptions stores some.").arg(wanted.name());
        choices = *std::move(own);
    }
    return {};
}

} // namespace

Result<StartedRoom> startRoom(const SessionRequest &session, const QString &preset, PanelLoader &loader)
{
    using Started = Result<StartedRoom>;
    const QueueInstance wanted =
        session.usesServer() ? QueueInstance::fromName(session.queue) : QueueInstance{session.queueWithoutServer(), {}};
    auto source = session.usesServer() ? Result<std::shared_ptr<const QueueSource>>(makeServerSource())
                                       : makePpdSource(session, {});
    if (!source)
        return Started::failure(source.error());
    Result<Fetched> fetched = fetchFor(source.value(), session, wanted.queue);
    if (!fetched)
        return Started::failure(fetched.error());
    PrintQueue queue = std::move(fetched.value().queue);
    if (!session.deviceUri.isEmpty())
        queue.deviceUri = session.deviceUri;
    StartedRoom started;
    StartChoices choices;
    if (const QString problem =
            fillTicket(started, choices, session, {queue.name, wanted.instance}, fetched.value().ppds.rows.handle());
        !problem.isEmpty())
        return Started::failure(problem);
    Preset used;
    if (!preset.isEmpty()) {
        const Result<Preset> loaded = PresetStore().load(queue.name, preset);
        if (!loaded)
            return Started::failure(loaded.error());
        used = loaded.value();
        started.source = StartSource::Preset;
    }
    started.room = std::make_unique<QueueRoom>(queue);
    QueueRoom &room = *started.room;
    room.open(std::move(fetched.value().ppds), source.value()->hasPrinter(), choices);
    QObject::connect(room.rows(), &PpdOptionRows::choiceMade, &room, &QueueRoom::choiceMade);
    room.preparePane(loader);
    room.enter();
    if (started.source == StartSource::Preset)
        started.misfits = room.use(used.options, tr("From the preset “%1”.").arg(used.name)).misfits;
    return started;
}

} // namespace bv
