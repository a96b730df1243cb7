// What of the environment reaches the SNMP library.
#pragma once

namespace bv {

// Sets the environment for the SNMP library, before its first call: no MIB files, names or prefixes, no persistent
// folder. In a process whose real and effective ids differ, none of the variables that lead to configuration either.
void prepareSnmpEnvironment();

} // namespace bv
