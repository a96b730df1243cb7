// SPDX-License-Identifier: GPL-2.0-or-later
// Answers the requests about the list files.
#pragma once

#include "helper/RequestTable.h"

namespace bv {

// Each function takes its arguments in the request's fixed order; their number was checked before. Returns FALSE and
// changes nothing when a path or URL does not name a list of the caller, or when the caller may not write the folder
// ("exist" does not need this right).
Outcome answerIsAdmin(const Caller &caller, RequestArguments arguments); // current path
Outcome answerExist(const Caller &caller, RequestArguments arguments);   // current path
Outcome answerRemove(const Caller &caller, RequestArguments arguments);  // current or previous path
Outcome answerSwap(const Caller &caller, RequestArguments arguments);    // code, current path, previous path
Outcome answerPiece(const Caller &caller, RequestArguments arguments);   // URL, piece of the text
Outcome answerCommit(const Caller &caller, RequestArguments arguments);  // URL

} // namespace bv
