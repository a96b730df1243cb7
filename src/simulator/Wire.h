// Changes to SNMP messages on their way out, for answers that the agent library cannot be made to give.
#pragma once

#include <span>
#include <vector>

#include <sys/types.h>

namespace sim {

// An SNMPv1 answer (RFC 1157, 4) with its list of variables emptied; an empty vector when the message is no answer.
std::vector<u_char> withoutVariables(std::span<const u_char> message);

} // namespace sim
