// SPDX-License-Identifier: GPL-2.0-or-later
// The walk of the printer's profile table over SNMP version 1, for the helper. Core with Net-SNMP.
#pragma once

#include "profiles/ProfileList.h"

#include <chrono>
#include <cstddef>
#include <cstdint>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

// Walks the table with the words of the request ("snmpwalk" first). Returns 0 on success; 1 for no answer, no session,
// a bad root, identifiers that do not increase, a reached limit, or a walk that crashed; 2 for an error status of the
// printer; a negative number when the arguments do not parse. The reconciliation runs at the end in every case.
int32_t mib_walk(int32_t argc, char **argv);

// The last error text of a walk, in the encoding of the process; empty when there was none.
extern char sDEBUGmsg[128];

// The library's callback for the option "-C". Its letters c, p and i toggle "dontCheckOrdering", "printStatistics" and
// "includeRequested"; any other letter leaves a message in sDEBUGmsg. Other options are ignored.
void optProc(int argc, char *const *argv, int option);

// Sends one GET for a name of `length` sub-identifiers over an open session, and waits. If the answer has no error,
// each of its variables is printed on standard output by the library and counted in numprinted. Any other answer is
// ignored.
void snmp_get_and_print(netsnmp_session *session, const oid *name, size_t length);

namespace bv {

// Limits of a walk. A walk that reaches one ends with status 1.
struct WalkLimits
{
    int answers = 20000;                        // 500 rows of 7 columns need 3,500
    std::chrono::milliseconds time{120 * 1000}; // from the opening of the session
    // For what the process that walks does besides: looking up the printer's name, handing over the rows.
    std::chrono::milliseconds beforeAndAfter{10 * 1000};
};

// The walk alone, in this process. Fills the spool. `sessionOpen`, if not null, is called when everything is open that
// the walk needs, before the first packet is read. Call prepareSnmpEnvironment first.
int32_t walkPrinter(int32_t argc, char **argv, const WalkLimits &limits, void (*sessionOpen)());

// Like mib_walk, with other limits.
int32_t walkProfileTable(int32_t argc, char **argv, const WalkLimits &limits);

} // namespace bv
