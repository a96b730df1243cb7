// SPDX-License-Identifier: GPL-2.0-or-later
// Turns a job's options into attributes of a request to the print server.
#pragma once

#include "jobs/JobSink.h"

#include <cups/ipp.h>

namespace bv {

// Adds an option as a job attribute. libcups chooses the type: integers, keywords and ranges for standard options, a
// boolean for True and False. It splits values of unknown options at quotes, commas and a leading brace, so these are
// added whole. An option without a name is left out.
void addJobOption(ipp_t *request, const QString &keyword, const QString &value);

// A sentence for the user about the first option that the server would misread; empty when there is none.
QString problemWithOptions(const JobOptions &options);

} // namespace bv
