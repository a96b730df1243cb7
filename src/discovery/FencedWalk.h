// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a walk in a process that can do nothing but walk.
#pragma once

#include "discovery/ProfileWalk.h"

namespace bv {

// Walks like walkPrinter, in a child process. Once its session is open, the child gives up all other rights
// (platform/ProcessFence.h): what a printer sends can then neither read nor write a file, however it was made. At its
// end the child hands status, spool, numprinted, sDEBUGmsg and what it printed to this process, in a record of fixed
// size. A child that crashes, hands over anything else, or does not end in the time of the limits is a walk with status
// 1 and an empty spool.
//
// Prints what the child printed on standard output, 256 kB at most. Call it from a process with one thread, and before
// the SNMP library was used.
int32_t walkBehindFence(int32_t argc, char **argv, const WalkLimits &limits);

} // namespace bv
