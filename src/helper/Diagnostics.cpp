// SPDX-License-Identifier: GPL-2.0-or-later
// The helper's diagnostics: one line on standard error for each refusal and failure.
#include "helper/Diagnostics.h"

#include <cstring>
#include <string>
#include <unistd.h>

namespace bv {

void complain(std::string_view what, int error)
{
    std::string line = "QL70Helper: ";
    line += what;
    if (error != 0)
        line.append(": ").append(std::strerror(error));
    line += '\n';
    // An error here is ignored: there is no other place to report it.
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
}

} // namespace bv
