// SPDX-License-Identifier: GPL-2.0-or-later
// Controls which environment variables reach the SNMP library.
#pragma once

namespace bv {

// Prepares the environment for the SNMP library; call it before the first call of the library. Afterwards the library
// loads no MIB files and uses no prefix and no persistent folder. If real and effective ids differ, the variables that
// lead to configuration files are removed too.
void prepareSnmpEnvironment();

} // namespace bv
