// SPDX-License-Identifier: GPL-2.0-or-later
// Changes outgoing SNMP messages, for answers that the agent library cannot produce.
#pragma once

#include <span>
#include <vector>

#include <sys/types.h>

namespace sim {

// Returns the SNMPv1 answer (RFC 1157, 4) without its variables. An empty vector when the message is not an answer.
std::vector<u_char> withoutVariables(std::span<const u_char> message);

} // namespace sim
