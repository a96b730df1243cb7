// SPDX-License-Identifier: GPL-2.0-or-later
// Looks for the choices in their order.
#include "dialog/StartChoices.h"

#include "dialog/PrintDialog.h"
#include "queues/JobOnlyKeys.h"

namespace bv {

StartChoices startChoices(const PrintDialogStart &start, const RememberedTickets &remembered, const QString &queue,
                          ppd_file_t *ppd)
{
    StartChoices choices;
    const bool isFirst = queue == start.queue;
    if (isFirst && start.ticket) {
        choices.ticket = start.ticket;
        removeJobOnlyKeys(&*choices.ticket);
        return choices;
    }
    if (isFirst && start.jobOptions) {
        choices.ticket = ticketFromDefaults(*start.jobOptions, ppd);
        choices.areUserDefaults = true;
        return choices;
    }
    const QueueInstance wanted{queue, isFirst ? start.instance : QString()};
    if (wanted.instance.isEmpty())
        choices.ticket = remembered.load(queue);
    if (choices.ticket || !start.withUserDefaults)
        return choices;
    std::optional<UserDefaults::Options> options = UserDefaults().options(wanted);
    if (!options) {
        choices.note =
            PrintDialog::tr("You have no defaults called “%1”. The printer's own are shown.").arg(wanted.name());
        return choices;
    }
    if (!options->empty()) {
        choices.ticket = ticketFromDefaults(*options, ppd);
        choices.areUserDefaults = true;
    }
    return choices;
}

} // namespace bv
