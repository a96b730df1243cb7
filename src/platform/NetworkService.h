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

// Asks the machine's Avahi daemon for a service: its instance name as it reads (UTF-8, nothing escaped), its type
// ("_pdl-datastream._tcp") and its domain ("local"). The addresses found, the first one first, IPv4 only; nothing when
// there is no daemon, the service cannot exist, or it does not resolve within the limit. Blocks meanwhile.
std::optional<std::vector<AddressRecord>> resolveService(const std::string &name, const std::string &type,
                                                         const std::string &domain, std::chrono::milliseconds limit);

} // namespace bv
