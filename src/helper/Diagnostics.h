// SPDX-License-Identifier: GPL-2.0-or-later
// The helper's diagnostics: one line on standard error for each refusal and failure.
#pragma once

#include <string_view>

namespace bv {

// Writes "QL70Helper: WHAT" to standard error. If `error` is an errno value and not 0, ": " and its strerror(3) text
// follow. Never pass text from a request: it could forge a line.
void complain(std::string_view what, int error = 0);

} // namespace bv
