// Carries out a walk request.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Runs the walk and the reconciliation, which writes the list through the list requests of this process. The verdict is
// "iRet=" and the walk's status. Words, host and login name are judged as the helper judged them before it came to
// this; every other request is unknown.
Outcome runWalk(std::string_view name, RequestArguments arguments, const Caller &caller);

} // namespace bv
