// SPDX-License-Identifier: GPL-2.0-or-later
// Looks up a Bonjour service with the Avahi client library.
#pragma once

#include <string>

namespace bv {

// Asks the machine's Avahi daemon for a service; the parts of its name are plain (UTF-8, nothing escaped). Returns one
// line "ADDRESS PORT" with the IPv4 address in dotted form, empty when there is no daemon, the name is not valid, or
// the daemon knows no such service.
//
// Waits as long as the daemon and the message bus let it: the library's calls have time limits of their own, and some
// have none. So only a process that may be killed calls it.
std::string lookUpService(const std::string &name, const std::string &type, const std::string &domain);

} // namespace bv
