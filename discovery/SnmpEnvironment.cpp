// Takes out of the environment what the SNMP library would read with plain getenv(3), set-id process or not.
#include "discovery/SnmpEnvironment.h"

#include <cstdlib>
#include <unistd.h>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace {

struct Variable
{
    const char *name;
    bool callersOwn; // of use to a caller whose rights the process runs with
};

// clang-format off
constexpr Variable kVariables[] = {
    // snmp_config(5), netsnmp_config_api(3), mib_api(3)
    {"SNMPCONFPATH",         true },
    {"SNMP_PERSISTENT_DIR",  true },
    {"SNMP_PERSISTENT_FILE", true },
    {"HOME",                 true },
    {"MIBDIRS",              false},
    {"MIBFILES",             false},
    {"PREFIX",               false},
};
// clang-format on

} // namespace

void bv::prepareSnmpEnvironment()
{
    const bool ownRights = getuid() == geteuid() && getgid() == getegid();
    for (const Variable &variable : kVariables) {
        if (!ownRights || !variable.callersOwn)
            unsetenv(variable.name);
    }
    // Set and empty, not unset: the library then loads no MIB files. The walk's identifiers are numbers.
    setenv("MIBS", "", 1);
    // The walk keeps nothing between two runs.
    netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE, 1);
}
