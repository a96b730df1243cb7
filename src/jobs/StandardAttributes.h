// SPDX-License-Identifier: GPL-2.0-or-later
// The standard job attributes that tell the print server what a PPD option tells the printer.
#pragma once

#include "jobs/JobSink.h"

#include <cups/ppd.h>

namespace bv {

// Adds the attributes for the options; for an option that is missing, the PPD's default counts. Without them the print
// server fills in missing attributes (PWG 5100.13) from the printer's capabilities, and a job in gray would be
// announced as a color job. Attributes that are set already stay. The PPD may be null.
void addStandardAttributes(JobOptions &options, ppd_file_t *ppd);

} // namespace bv
