// The walk of the printer's profile table over SNMP version 1, and the spool that it fills. Core with Net-SNMP.
#pragma once

#include "profiles/ProfileList.h"

#include <cstddef>
#include <cstdint>

// Walks the table with the words of the request ("snmpwalk" first). 0 success; 1 no answer, no session, a bad root or
// identifiers that do not increase; 2 an error status of the device; negative: the arguments do not parse. The
// reconciliation runs at its end whatever the result.
int32_t mib_walk(int32_t argc, char **argv);
