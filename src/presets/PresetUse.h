// SPDX-License-Identifier: GPL-2.0-or-later
// Puts a set of choices in the place of the present ones, and tells what came of it.
#pragma once

#include "platform/PrintValue.h"

#include <QStringList>

namespace bv {

class PrintPanel;
class QueueSession;

struct PresetOutcome
{
    int changed = 0;     // options that are chosen otherwise than before
    QStringList misfits; // what this printer cannot do: a sentence for each option
};

// Puts the values of a panel's options, and of what belongs to these options (OPTIONCustom …), into each dictionary
// within the ticket that holds one of them: panels keep their choices in dictionaries of their own.
void putIntoNested(const PrintDictionary &ticket, const PrintDictionary &values, const QStringList &paneKeys);

// Makes `options` the choices of the session's ticket and of the panel, which may be null. Options without an entry get
// the printer's default. The ticket must hold the present choices, with what rows of a window show.
PresetOutcome useChoices(QueueSession &session, PrintPanel *panel, const PrintDictionary &options);

} // namespace bv
