// The requests about the list files.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Each takes its arguments in the request's fixed order; their number has been checked. Whoever is not named by a path
// or URL of his own, and whoever may not write the folder (but for "exist"), gets FALSE and nothing is touched.
Outcome answerIsAdmin(const Caller &caller, RequestArguments arguments); // current path
Outcome answerExist(const Caller &caller, RequestArguments arguments);   // current path
Outcome answerRemove(const Caller &caller, RequestArguments arguments);  // current or previous path
Outcome answerSwap(const Caller &caller, RequestArguments arguments);    // code, current path, previous path
Outcome answerPiece(const Caller &caller, RequestArguments arguments);   // URL, piece of the text
Outcome answerCommit(const Caller &caller, RequestArguments arguments);  // URL

} // namespace bv
