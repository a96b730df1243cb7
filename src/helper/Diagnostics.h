// The helper's diagnostics: one line on standard error for each refusal and failure.
#pragma once

#include <string_view>

namespace bv {

// Writes "QL70Helper: WHAT" to standard error, with ": REASON" (strerror(3) of an errno value) behind it if that is
// not 0. No text of a request is ever passed here, so a line cannot be forged.
void complain(std::string_view what, int error = 0);

} // namespace bv
