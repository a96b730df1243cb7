// SPDX-License-Identifier: GPL-2.0-or-later
// Cuts a text into pieces that each fit one argument of a request. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Cuts a UTF-8 text into consecutive pieces of at most `units` UTF-16 code units (at least 2). Characters are never
// cut. One beyond U+FFFF counts two units, so the piece before it may be one unit shorter. A byte that belongs to no
// character counts one unit. An empty text gives no pieces.
std::vector<std::string> splitCharEvery(std::string_view text, size_t units);
