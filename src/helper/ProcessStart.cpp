// SPDX-License-Identifier: GPL-2.0-or-later
// Prepares standard descriptors, signals and ids.
#include "helper/ProcessStart.h"

#include "helper/Diagnostics.h"
#include "platform/FileDescriptor.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/auxv.h>
#include <unistd.h>

namespace bv {

namespace {

bool giveUpEffectiveIds()
{
    const uid_t user = getuid();
    const gid_t group = getgid();
    return setresgid(group, group, group) == 0 && setresuid(user, user, user) == 0;
}

} // namespace

bool prepareProcess()
{
    if (!openStandardDescriptors(O_RDWR))
        return false;
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    const bool idsDiffer = getuid() != geteuid() || getgid() != getegid();
    // The kernel sets AT_SECURE when a program starts with more rights than its caller has, see getauxval(3).
    if (!idsDiffer && getauxval(AT_SECURE) == 0)
        return true;
    clearenv();
    if (idsDiffer && !giveUpEffectiveIds()) {
        complain("cannot give up the effective ids", errno);
        return false;
    }
    return true;
}

} // namespace bv
