// What of the environment reaches the SNMP library.
#pragma once

namespace bv {

// Sets the environment for the SNMP library, before its first call: no MIB files, names or prefixes, and in a process
// whose real and effective ids differ none of the variables that lead to configuration files.
void prepareSnmpEnvironment();

} // namespace bv
