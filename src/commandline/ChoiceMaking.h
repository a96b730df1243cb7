// SPDX-License-Identifier: GPL-2.0-or-later
// Makes choices in a queue's rows and pane as a user does in the window, and tells which of them the rules are against.
#pragma once

#include "commandline/WantedChoices.h"
#include "dialog/QueueRoom.h"

namespace bv {

// Choices that the rules do not let stand.
struct Refusal
{
    QString words;    // "KEYWORD=CHOICE", or several
    QString sentence; // why, in the window's words
};

// A user can make one choice only after another one made it available. So each choice is made as soon as that is
// possible, in whatever order they come. Refused is what never became possible, or has no effect among the other
// choices; what an option has already is not. With `force` refused choices are made as far as the rules leave them. The
// room is in the state Ready. The sentence of a failure tells what a printer does not have.
Result<std::vector<Refusal>> makeChoices(QueueRoom &room, const std::vector<WantedChoice> &wanted, bool force);

// The present choices that do not go together.
std::vector<Refusal> conflictsIn(QueueRoom &room);

// The choice of an option that counts now: a keyword of the PPD, or the title of an item beside its choices. Call
// room.updateConflicts() before.
QString choiceThatCounts(const QueueRoom &room, const QString &keyword, const PaneOption *held);

} // namespace bv
