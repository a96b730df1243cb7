// SPDX-License-Identifier: GPL-2.0-or-later
// What people are told of a printer's state, in their words.
#pragma once

#include "queues/PrintServer.h"

namespace bv {

enum class PrinterState {
    Ready,
    Attention, // it prints, or will once somebody has seen to it
    Stopped,   // jobs wait until somebody resumes it
    Closed,    // it takes no jobs
};

PrinterState stateOf(const PrintQueue &queue);

// The name that people know, and the print server's where that is another one.
QString printerTitle(const PrintQueue &queue);
// Place and state, and what to do where there is something to do. Empty for a printer that is ready and has no place.
QString printerNote(const PrintQueue &queue);
// Why the printer takes no jobs, in a sentence with what to do; empty when it takes them.
QString whyNoJobs(const PrintQueue &queue);

} // namespace bv
