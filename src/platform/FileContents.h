// Reads a whole regular file. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace bv {

// The bytes of the regular file at a real path; nothing, with the reason in the diagnostic log, when it is missing, not
// readable, larger than `maximum` bytes, or something else: a symbolic link, folder or FIFO (which never blocks this).
std::optional<std::string> fileContents(const std::string &path, size_t maximum);

// The same of an open descriptor, from its place on; it stays open. The name is for the log.
std::optional<std::string> fileContents(int descriptor, const std::string &name, size_t maximum);

} // namespace bv
