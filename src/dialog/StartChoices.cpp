// SPDX-License-Identifier: GPL-2.0-or-later
// Looks for the choices in their order.
#include "dialog/StartChoices.h"

#include "dialog/PrintDialog.h"
#include "queues/JobOnlyKeys.h"

namespace bv {

QString StartChoices::words() const
{
    switch (origin) {
    case ChoiceOrigin::Given:
        return PrintDialog::tr("As given");
    case ChoiceOrigin::LastJob:
        return PrintDialog::tr("As last time");
    case ChoiceOrigin::UserDefaults:
        return PrintDialog::tr("My defaults");
    case ChoiceOrigin::Job:
        return PrintDialog::tr("As sent");
    default:
        return PrintDialog::tr("Printer's defaults");
    }
}

QString StartChoices::sentence() const
{
    switch (origin) {
    case ChoiceOrigin::Given:
        return PrintDialog::tr("From the ticket that was given.");
    case ChoiceOrigin::LastJob:
        return PrintDialog::tr("As in your last job.");
    case ChoiceOrigin::UserDefaults:
        return PrintDialog::tr("Your own default.");
    case ChoiceOrigin::Job:
        return PrintDialog::tr("As the job was sent.");
    default:
        return {};
    }
}

namespace {

StartChoices choicesWithoutCaller(const PrintDialogStart &start, const RememberedTickets &remembered,
                                  const QString &queue, ppd_file_t *ppd)
{
    StartChoices choices;
    const bool isFirst = queue == start.queue;
    if (isFirst && start.ticket) {
        choices.ticket = start.ticket;
        removeJobOnlyKeys(&*choices.ticket);
        choices.origin = ChoiceOrigin::Given;
        return choices;
    }
    if (isFirst && start.jobOptions) {
        choices.ticket = ticketFromDefaults(*start.jobOptions, ppd);
        choices.forPanel = *choices.ticket;
        choices.origin = ChoiceOrigin::Job;
        return choices;
    }
    const QueueInstance wanted{queue, isFirst ? start.instance : QString()};
    if (wanted.instance.isEmpty())
        choices.ticket = remembered.load(queue);
    if (choices.ticket)
        choices.origin = ChoiceOrigin::LastJob;
    if (choices.ticket || !start.withUserDefaults)
        return choices;
    if (std::optional<StartChoices> own = choicesOfUser(wanted, ppd))
        return *std::move(own);
    choices.note = PrintDialog::tr("You have no defaults called “%1”. The printer's own are shown.").arg(wanted.name());
    return choices;
}

} // namespace

std::optional<StartChoices> choicesOfUser(const QueueInstance &of, ppd_file_t *ppd)
{
    const std::optional<UserDefaults::Options> options = UserDefaults().options(of);
    if (!options)
        return std::nullopt;
    StartChoices choices;
    if (!options->empty()) {
        choices.ticket = ticketFromDefaults(*options, ppd);
        choices.forPanel = *choices.ticket;
        choices.origin = ChoiceOrigin::UserDefaults;
    }
    return choices;
}

StartChoices startChoices(const PrintDialogStart &start, const RememberedTickets &remembered, const QString &queue,
                          ppd_file_t *ppd)
{
    StartChoices choices = choicesWithoutCaller(start, remembered, queue, ppd);
    if (!start.caller || queue != start.queue)
        return choices;
    for (const auto &[key, value] : start.caller->choices.entries) {
        if (!choices.ticket)
            choices.ticket.emplace();
        choices.ticket->setValue(key, value);
        choices.forPanel.setValue(key, value);
    }
    if (!start.caller->note.isEmpty())
        choices.note = start.caller->note;
    return choices;
}

} // namespace bv
