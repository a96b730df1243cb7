// SPDX-License-Identifier: GPL-2.0-or-later
// The printer's rule for profile file names. Core: free of Qt, libcups and Net-SNMP.
#pragma once

#include <string_view>

// Whether the text is an acceptable profile file name: 1 to 27 characters before the first ".", at most 3 after it
// (further dots included), all accepted by FileNameFilter. A name without an extension is acceptable.
bool bJudgement8point3Format(std::string_view text);

// Whether the character may stand in a profile file name.
bool FileNameFilter(char character);
