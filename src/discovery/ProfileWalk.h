// The walk of the printer's profile table over SNMP version 1, for the helper. Core with Net-SNMP.
#pragma once

#include "profiles/ProfileList.h"

#include <chrono>
#include <cstddef>
#include <cstdint>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

// Walks the table with the words of the request ("snmpwalk" first). 0 success; 1 no answer, no session, a bad root or
// identifiers that do not increase; 2 an error status of the device; negative: the arguments do not parse. The
// reconciliation runs at its end whatever the result.
int32_t mib_walk(int32_t argc, char **argv);

// The last error text of a walk, in the process's own bytes; empty when there was none.
extern char sDEBUGmsg[128];

// The library's call-back for the option "-C": its letters c, p and i toggle "dontCheckOrdering", "printStatistics" and
// "includeRequested"; another letter leaves a message in sDEBUGmsg. Other options are ignored.
void optProc(int argc, char *const *argv, int option);

// Sends one GET for a name of `length` sub-identifiers over an open session, and waits. Each variable of an answer
// without error counts in numprinted and is printed on standard output by the library; any other answer is passed over.
void snmp_get_and_print(netsnmp_session *session, const oid *name, size_t length);

namespace bv {

// What ends every walk with status 1, however the printer behaves.
struct WalkLimits
{
    int answers = 20000;                        // more than 500 rows of 7 columns need by far
    std::chrono::milliseconds time{120 * 1000}; // from the opening of the session on
};

// mib_walk within other limits.
int32_t walkProfileTable(int32_t argc, char **argv, const WalkLimits &limits);

} // namespace bv
