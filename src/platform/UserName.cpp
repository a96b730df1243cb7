// SPDX-License-Identifier: GPL-2.0-or-later
// The login name from the password database.
#include "platform/UserName.h"

#include <pwd.h>
#include <unistd.h>

namespace bv {

std::string loginName()
{
    const passwd *entry = getpwuid(getuid());
    return entry && entry->pw_name ? entry->pw_name : std::string();
}

} // namespace bv
