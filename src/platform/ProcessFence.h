// SPDX-License-Identifier: GPL-2.0-or-later
// Takes the rights away from a process that is about to read what strangers wrote: packets, documents. Free of Qt and
// libcups; a library of its own (bvfence), so that only such processes link libseccomp.
#pragma once

#include <cstddef>
#include <span>

namespace bv {

// What a process behind the fence may still do, besides computing, and reading and writing open descriptors.
struct FenceRules
{
    std::span<const char *const> readable =
        {};                  // files and folders that it may open for reading; missing ones are skipped
    bool threads = false;    // it may start threads
    bool sockets = false;    // it may send and receive through sockets that are open already
    size_t memoryBytes = 0;  // address space; 0: as before. Not kept under the address sanitizer
    unsigned cpuSeconds = 0; // processor time, then SIGKILL ends it; 0: as before
};

// Which parts hold. A kernel or a container may lack either one; the process then goes on without it.
struct Fence
{
    bool files = false; // Landlock: opens what is readable, nothing else
    bool calls =
        false; // seccomp: no file is opened for writing, removed or renamed; no program, process or socket starts
};

// Raises the fence for good, for the calling process and all it starts. Call it before any thread is started. A call
// that is not allowed fails with ENOSYS, as on a kernel that lacks it. No core is dumped, and other processes of the
// user cannot trace it. See landlock(7), seccomp(2), prctl(2) PR_SET_NO_NEW_PRIVS.
Fence raiseFence(const FenceRules &rules) noexcept;

} // namespace bv
