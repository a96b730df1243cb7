// SPDX-License-Identifier: GPL-2.0-or-later
// Bonjour services: from a service's name to the addresses of the machine that offers it, within a time limit.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace bv {

// A socket address record as the system's network calls use it (struct sockaddr_in for IPv4).
using AddressRecord = std::vector<std::byte>;

// Asks the machine's Avahi daemon for a service. `name` is the plain instance name (UTF-8, nothing escaped), `type` is
// like "_pdl-datastream._tcp" and `domain` like "local". Returns IPv4 addresses in the order of their arrival. Nothing
// when there is no daemon, the service's name is not valid, or the service does not resolve within the limit. Blocks
// until then.
std::optional<std::vector<AddressRecord>> resolveService(const std::string &name, const std::string &type,
                                                         const std::string &domain, std::chrono::milliseconds limit);

} // namespace bv
