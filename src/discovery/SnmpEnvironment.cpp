// SPDX-License-Identifier: GPL-2.0-or-later
// Removes variables from the environment that the SNMP library reads with getenv(3), even in a set-id process.
#include "discovery/SnmpEnvironment.h"

#include <cstdlib>
#include <unistd.h>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace {

struct Variable
{
    const char *name;
    const char *value; // new value; null: the variable is removed
    bool callersOwn;   // unchanged in a process with its caller's rights
};

// All variables that the library reads: snmp_config(5), netsnmp_config_api(3), netsnmp_mib_api(3). Empty is not the
// same as removed: with empty MIB variables the library loads no MIB and searches no folder. The persistent folder is
// one that cannot exist, so the library cannot create it (as root it would) and finds nothing in it.
// clang-format off
constexpr Variable kVariables[] = {
    // name                  value        the caller's own
    {"SNMPCONFPATH",         nullptr,     true },
    {"HOME",                 nullptr,     true },
    {"SNMP_PERSISTENT_DIR",  "/dev/null", false},
    {"SNMP_PERSISTENT_FILE", nullptr,     false},
    {"MIBS",                 "",          false},
    {"MIBDIRS",              "",          false},
    {"MIBFILES",             nullptr,     false},
    {"PREFIX",               nullptr,     false},
};
// clang-format on

} // namespace

void bv::prepareSnmpEnvironment()
{
    const bool ownRights = getuid() == geteuid() && getgid() == getegid();
    for (const Variable &variable : kVariables) {
        if (ownRights && variable.callersOwn)
            continue;
        if (variable.value)
            setenv(variable.name, variable.value, 1);
        else
            unsetenv(variable.name);
    }
    netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD, 1);
    netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE, 1);
}
