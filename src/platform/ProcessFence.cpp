// SPDX-License-Identifier: GPL-2.0-or-later
// Landlock for files, seccomp for system calls, limits for memory and time.
#include "platform/ProcessFence.h"

#include "platform/FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/landlock.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace bv {

namespace {

// Calls that only compute, or use what is open. Names, because not every architecture has every one of them.
// clang-format off
constexpr const char *kAlways[] = {
    // bytes of open descriptors
    "read", "readv", "pread64", "preadv", "write", "writev", "pwrite64", "lseek", "_llseek", "close", "close_range",
    "dup", "dup2", "dup3", "fcntl", "fcntl64", "fstat", "fstat64", "fstatfs", "fstatfs64", "pipe2", "eventfd2",
    "memfd_create", "ftruncate", "ftruncate64",
    "poll", "ppoll", "ppoll_time64", "select", "_newselect", "pselect6", "pselect6_time64",
    "epoll_create1", "epoll_ctl", "epoll_wait", "epoll_pwait",
    // memory
    "brk", "mmap", "mmap2", "munmap", "mremap", "mprotect", "madvise",
    // threads that run, signals to itself, the end
    "futex", "futex_time64", "set_robust_list", "rseq", "membarrier", "sched_yield", "sched_getaffinity",
    "sched_getparam", "sched_getscheduler", "sched_get_priority_min", "sched_get_priority_max",
    "set_tid_address", "arch_prctl", "rt_sigaction", "rt_sigprocmask", "rt_sigreturn", "sigreturn", "sigaltstack",
    "restart_syscall", "exit", "exit_group",
    // questions
    "getpid", "gettid", "getppid", "getuid", "geteuid", "getgid", "getegid", "getrusage", "ugetrlimit",
    "getrandom", "uname", "sysinfo", "getcpu", "times",
    "clock_gettime", "clock_gettime64", "clock_getres", "clock_getres_time64", "gettimeofday", "time",
    "nanosleep", "clock_nanosleep", "clock_nanosleep_time64",
};
constexpr const char *kWithReadable[] = {
    "access", "faccessat", "faccessat2", "readlink", "readlinkat", "stat", "stat64", "lstat", "lstat64", "newfstatat",
    "fstatat64", "statx", "getcwd", "getdents64",
};
constexpr const char *kWithSockets[] = {
    "send", "sendto", "sendmsg", "sendmmsg", "recv", "recvfrom", "recvmsg", "recvmmsg", "recvmmsg_time64",
    "getsockname", "getpeername", "getsockopt", "setsockopt", "shutdown",
};
// clang-format on

struct FilterRelease
{
    void operator()(void *filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, FilterRelease>;

void allow(const Filter &filter, std::span<const char *const> names)
{
    for (const char *name : names) {
        const int number = seccomp_syscall_resolve_name(name);
        if (number != __NR_SCMP_ERROR)
            seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, number, 0);
    }
}

// Opening for reading only. openat2(2) hides its flags from a filter and stays forbidden.
void allowOpening(const Filter &filter)
{
    constexpr unsigned kForbidden = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(open), 1,
                     SCMP_A1(SCMP_CMP_MASKED_EQ, kForbidden, O_RDONLY));
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(openat), 1,
                     SCMP_A2(SCMP_CMP_MASKED_EQ, kForbidden, O_RDONLY));
}

// The C library falls back on clone(2) where clone3(2), whose flags a filter cannot see, is not there.
void allowThreads(const Filter &filter)
{
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(clone), 1,
                     SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD));
}

bool filterCalls(const FenceRules &rules)
{
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)));
    if (!filter)
        return false;
    allow(filter, kAlways);
    // Questions that the C library asks of each stream that it opens; never one that changes a terminal.
    for (const unsigned long question : {static_cast<unsigned long>(TCGETS), static_cast<unsigned long>(FIONREAD)})
        seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(ioctl), 1, SCMP_A1(SCMP_CMP_EQ, question, 0));
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(prctl), 1, SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME, 0));
    // Asking for a limit; root could raise one again.
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), 1, SCMP_A2(SCMP_CMP_EQ, 0, 0));
    // abort(3)
    seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1,
                     SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()), 0));
    if (!rules.readable.empty()) {
        allow(filter, kWithReadable);
        allowOpening(filter);
    }
    if (rules.threads)
        allowThreads(filter);
    if (rules.sockets)
        allow(filter, kWithSockets);
    return seccomp_load(filter.get()) == 0;
}

constexpr unsigned long long kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

// All rights that the first version of Landlock knows; later ones only add kinds of writing, which the filter forbids.
constexpr unsigned long long kFileRights = LANDLOCK_ACCESS_FS_MAKE_SYM | (LANDLOCK_ACCESS_FS_MAKE_SYM - 1);

bool fenceFiles(std::span<const char *const> readable)
{
    landlock_ruleset_attr rights = {};
    rights.handled_access_fs = kFileRights;
    const FileDescriptor rules(
        static_cast<int>(syscall(SYS_landlock_create_ruleset, &rights, sizeof rights.handled_access_fs, 0)));
    if (!rules)
        return false;
    for (const char *path : readable) {
        const FileDescriptor place(open(path, O_PATH | O_CLOEXEC));
        struct stat state = {};
        if (!place || fstat(place.get(), &state) != 0)
            continue;
        landlock_path_beneath_attr rule = {};
        rule.parent_fd = place.get();
        rule.allowed_access = S_ISDIR(state.st_mode) ? kReading : kReading & LANDLOCK_ACCESS_FS_READ_FILE;
        syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    }
    return syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
}

void limit(__rlimit_resource resource, rlim_t value)
{
    const rlimit both = {value, value};
    setrlimit(resource, &both);
}

} // namespace

Fence raiseFence(const FenceRules &rules) noexcept
{
    Fence fence;
    limit(RLIMIT_CORE, 0);
#ifndef __SANITIZE_ADDRESS__
    // The address sanitizer reserves terabytes of addresses.
    if (rules.memoryBytes)
        limit(RLIMIT_AS, rules.memoryBytes);
#endif
    if (rules.cpuSeconds)
        limit(RLIMIT_CPU, rules.cpuSeconds);
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return fence;
    fence.files = fenceFiles(rules.readable);
    fence.calls = filterCalls(rules);
    return fence;
}

} // namespace bv
