// SPDX-License-Identifier: GPL-2.0-or-later
// What the dialog starts from for a queue: a given ticket, the one that it remembers, or the user's own defaults.
#pragma once

#include "queues/RememberedTickets.h"
#include "queues/UserDefaults.h"

namespace bv {

struct PrintDialogStart;

// Where choices come from.
enum class ChoiceOrigin { Printer, Given, LastJob, UserDefaults, Job };

struct StartChoices
{
    std::optional<PrintDictionary> ticket; // nothing: the printer's defaults
    PrintDictionary forPanel;              // of that ticket, what no panel has seen yet
    ChoiceOrigin origin = ChoiceOrigin::Printer;
    QString note; // a sentence for the user; may be empty

    // A few words for a button, and a sentence for the tip of a value; that of the printer is empty.
    QString words() const;
    QString sentence() const;
};

// What the user's own defaults choose; they may choose nothing. Nothing when there is no such instance. Changes the
// PPD's marks and marks its defaults.
std::optional<StartChoices> choicesOfUser(const QueueInstance &of, ppd_file_t *ppd);

// The options of a job that exists already come before all else, an instance that the start names before what is
// remembered. Changes the PPD's marks and marks its defaults.
StartChoices startChoices(const PrintDialogStart &start, const RememberedTickets &remembered, const QString &queue,
                          ppd_file_t *ppd);

} // namespace bv
