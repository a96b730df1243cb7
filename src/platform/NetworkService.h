// SPDX-License-Identifier: GPL-2.0-or-later
// Bonjour services: from a service's name to the addresses of the machine that offers it, within a time limit.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace bv {

// The path of the program that asks the Avahi daemon: beside the plug-in's file, since it belongs to the plug-in.
std::string resolverPath();

// A socket address record as the system's network calls use it (struct sockaddr_in for IPv4).
using AddressRecord = std::vector<std::byte>;

// Asks the machine's Avahi daemon for a service. `name` is the plain instance name (UTF-8, nothing escaped), `type` is
// like "_pdl-datastream._tcp" and `domain` like "local". Returns the first IPv4 address. Nothing when there is no
// daemon or no QL70Resolve, the service's name is not valid, or the service does not resolve within the limit. Blocks
// until then and not longer, whatever hangs: the daemon is asked by a child process, which is killed at the limit.
std::optional<std::vector<AddressRecord>> resolveService(const std::string &name, const std::string &type,
                                                         const std::string &domain, std::chrono::milliseconds limit);

} // namespace bv
