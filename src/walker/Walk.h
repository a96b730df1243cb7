// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a walk request.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Runs the walk and the reconciliation, which writes the list through list requests in this process. The verdict is
// "iRet=" and the status of the walk. Checks words, host and login name as the helper does. All other requests are
// unknown.
Outcome runWalk(std::string_view name, RequestArguments arguments, const Caller &caller);

} // namespace bv
