// The standard job attributes that say to the print server what a PPD option says to the printer.
#pragma once

#include "jobs/JobSink.h"

#include <cups/ppd.h>

namespace bv {

// Adds the attributes that go with the options, or with the PPD's default where an option is not among them. A print
// server fills in the attributes of PWG 5100.13 that a job lacks from what the printer can do, so a job in grays would
// be announced as one in colours. An attribute that is among the options already stays. The PPD may be null.
void addStandardAttributes(JobOptions &options, ppd_file_t *ppd);

} // namespace bv
