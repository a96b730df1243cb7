// Cuts a text into pieces that fit one argument of a request. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The consecutive pieces of a UTF-8 text, each of at most `units` UTF-16 code units: a character beyond U+FFFF counts
// two and is never cut, so the piece before it may be one unit shorter. A byte that belongs to no character counts one.
// An empty text has no piece. `units` is at least 2.
std::vector<std::string> splitCharEvery(std::string_view text, size_t units);
