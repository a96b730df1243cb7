// SPDX-License-Identifier: GPL-2.0-or-later
// The standard job attributes that tell the print server what a PPD option tells the printer.
#pragma once

#include "jobs/JobSink.h"

#include <cups/ppd.h>

namespace bv {

// Adds the attributes for what the job's options choose: without them the print server fills in its own defaults (PWG
// 5100.13), and a job in gray would be announced as a color job. Nothing is made of an option that is missing, or of a
// color choice that is the PPD's default; there an administrator's default holds (`lpadmin -o
// print-color-mode-default=…`). Attributes that are set already stay. The PPD may be null; then any choice counts.
void addStandardAttributes(JobOptions &options, ppd_file_t *ppd);

} // namespace bv
