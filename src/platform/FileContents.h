// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a whole regular file. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace bv {

// The contents of the regular file at a real path. Nothing, with the reason in the diagnostic log, when the file is
// missing, unreadable, larger than `maximum` bytes, or no regular file: a symbolic link, a folder, a FIFO (the call
// does not block on one).
std::optional<std::string> fileContents(const std::string &path, size_t maximum);

// The same for an open descriptor, from its current offset on. The descriptor stays open. `name` is for the log.
std::optional<std::string> fileContents(int descriptor, const std::string &name, size_t maximum);

} // namespace bv
