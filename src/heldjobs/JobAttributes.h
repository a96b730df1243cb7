// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the options of a job from its attributes on the print server.
#pragma once

#include "jobs/JobSink.h"

#include <QStringList>
#include <cups/ipp.h>

namespace bv {

// The text of the first value of an attribute; empty when the message has none of this name.
QString textOf(ipp_t *message, const char *name);
// The number of the first value of an attribute, or `otherwise`.
int numberOf(ipp_t *message, const char *name, int otherwise);

struct JobAttributes
{
    JobOptions options; // what can be chosen for the job, in the form of lp(1): "sides=two-sided-long-edge"
    QStringList names;  // of the attributes that these options stand for
};

// Leaves out what the server keeps about the job, and what has a control nowhere (priority, hold, banner pages). Paper
// that is described by its measures becomes the "media" of that name.
JobAttributes jobAttributes(ipp_t *message);

} // namespace bv
