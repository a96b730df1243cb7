// SPDX-License-Identifier: GPL-2.0-or-later
// A queue with its rows and pane, as the window has it for a user who never printed there, but without a window.
#pragma once

#include "dialog/QueueRoom.h"
#include "queues/SessionRequest.h"

namespace bv {

// Where the choices come from that nothing else on the command line made.
enum class StartSource { User, Preset, Ticket };

struct StartedRoom
{
    std::unique_ptr<QueueRoom> room; // in the state Ready
    StartSource source = StartSource::User;
    JobOptions attributes; // copies and pages of the ticket
    QStringList misfits;   // what the printer does not have of the preset: sentences
};

// Asks the print server for the queue, or opens the PPD; up to CallControl::kUsualLimit. The choices are the printer's
// defaults with the user's own over them, or those of the preset or of the ticket, never remembered ones. `loader` has
// the plug-in. The sentence of a failure says what to do about it.
Result<StartedRoom> startRoom(const SessionRequest &session, const QString &preset, PanelLoader &loader);

} // namespace bv
