// SPDX-License-Identifier: GPL-2.0-or-later
// Text for a terminal. Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// UTF-8 text with every control character written out (ESC as "\x1b", a control character above 0x7f as "\u009b"), so
// that a name from a print server or a file cannot steer the terminal that shows it. Only newlines stay, and tabs.
std::string printableText(std::string_view text);

// The same for JSON: control characters that it may carry raw (0x7f and above) become its own escapes, which mean the
// same.
std::string printableJson(std::string_view json);

} // namespace bv
