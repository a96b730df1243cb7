// SPDX-License-Identifier: GPL-2.0-or-later
// The login name of the user who runs this process. Free of Qt and libcups.
#pragma once

#include <string>

namespace bv {

// The login name of the real user id in the password database; empty when there is no entry.
std::string loginName();

} // namespace bv
