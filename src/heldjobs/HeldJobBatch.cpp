// SPDX-License-Identifier: GPL-2.0-or-later
// From the name of a job to a session.
#include "heldjobs/HeldJobBatch.h"

#include "dialog/QueueRoom.h"
#include "heldjobs/HeldJobSink.h"
#include "queues/BackgroundCall.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PanelLoader.h"
#include "queues/SessionStart.h"

#include <QCoreApplication>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HeldJobBatch", text);
}

} // namespace

Result<HeldJob> heldJobOf(const SessionRequest &request, const QString &job)
{
    using Found = Result<HeldJob>;
    JobName name = JobName::fromText(job);
    if (name.id == 0)
        return Found::failure(tr("“%1” is no job. Give its number, as lpstat -o shows it.").arg(job));
    if (name.queue.isEmpty())
        name.queue = request.queue;
    else if (!request.queue.isEmpty() && request.queue != name.queue)
        return Found::failure(tr("The options --queue and --job name different printers."));
    return callWithLimit<Found>([name](CallControl &control) { return findHeldJob(name, control); },
                                Found::failure(noAnswerSentence()));
}

Result<HeldJobSession> startHeldJobSession(const SessionRequest &request, const QString &job, PanelLoader &loader)
{
    using Started = Result<HeldJobSession>;
    const Result<HeldJob> found = heldJobOf(request, job);
    if (!found)
        return Started::failure(found.error());
    SessionRequest ofQueue = request;
    ofQueue.queue = found.value().queue;
    Result<std::unique_ptr<QueueSession>> session = startSession(ofQueue);
    if (!session)
        return Started::failure(session.error());
    using Ppds = Result<QueueRoom::Ppds>;
    Ppds ppds = callWithLimit<Ppds>(
        [queue = ofQueue.queue](CallControl &control) { return QueueRoom::fetch(*makeServerSource(), queue, control); },
        Ppds::failure(noAnswerSentence()));
    if (!ppds)
        return Started::failure(ppds.error());
    PrintQueue queue;
    queue.name = ofQueue.queue;
    QueueRoom room(queue);
    const JobOptions &options = found.value().attributes.options;
    StartChoices choices;
    choices.ticket = ticketFromDefaults(options, ppds.value().rows.handle());
    choices.forPanel = *choices.ticket;
    choices.origin = ChoiceOrigin::Job;
    room.open(std::move(ppds.value()), true, choices);
    room.preparePane(loader);
    room.saveValues();
    Ticket &ticket = session.value()->ticket();
    ticket.replace(room.ticket());
    for (const char *key : {kCopiesKey, kPageRangesKey}) {
        const auto had = options.find(QString::fromLatin1(key));
        if (had != options.end())
            ticket.setValue(had->first, PrintValue(had->second));
    }
    return HeldJobSession{std::move(session.value()), std::make_shared<HeldJobSink>(found.value())};
}

} // namespace bv
