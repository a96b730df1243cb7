// Reads a whole regular file. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace bv {

// The bytes of the regular file at a real path; nothing, with the reason in the diagnostic log, when it is missing, not
// readable, larger than `maximum` bytes, or something else: a symbolic link, folder or FIFO (which never blocks this).
std::optional<std::string> fileContents(const std::string &path, size_t maximum);

} // namespace bv
