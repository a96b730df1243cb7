// The printer's rule for profile file names. Core: free of Qt, libcups and Net-SNMP.
#pragma once

#include <string_view>

// Whether the text is an acceptable profile file name: 1 to 27 characters before the first ".", at most 3 bytes behind
// it (further dots included, none is fine too), and nothing that FileNameFilter refuses. An empty text fails.
bool bJudgement8point3Format(std::string_view text);

// Whether the character may stand in a profile file name.
bool FileNameFilter(char character);
