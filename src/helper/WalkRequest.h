// The request to walk the printer's profile table.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Arguments: the model, the login name, then the eight words of the walk. Words that are not exactly those of the
// request are no request; a login name that the caller may not act for is refused, and so is a walk without its
// library. Else it runs, writes the list through the list requests of this process, and the verdict is "iRet=" and its
// status.
Outcome answerWalk(const Caller &caller, RequestArguments arguments);

} // namespace bv
