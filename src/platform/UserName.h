// The login name of the user who runs this process. Free of Qt and libcups.
#pragma once

#include <string>

namespace bv {

// The name in the password database of the real user id (getpwuid(3) of getuid(2)); empty when it has no entry.
std::string loginName();

} // namespace bv
