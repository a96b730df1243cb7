// SPDX-License-Identifier: GPL-2.0-or-later
// The page counts against which ranges are checked.
#pragma once

#include "jobs/PrintJob.h"

namespace bv {

// Counts the pages of PDF documents, each in a process of its own without rights. Others have no count.
PageCount pdfPages();

} // namespace bv
