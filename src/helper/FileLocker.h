// SPDX-License-Identifier: GPL-2.0-or-later
// Locks the files that a request writes into: the staging file and the copy of a swap.
#pragma once

#include "helper/Caller.h"
#include "helper/ListFolder.h"

#include <chrono>
#include <string>

namespace bv {

// Opens or makes files of one user and locks them for this request. Each lock is held until the file is closed.
//
// The lock is one for writing on the open file (F_OFD_SETLK, see fcntl(2)), and the file has mode 0600 until it is
// finished. So nobody but its owner can hold a lock on it, not even one for reading: neither users without the right to
// manage profiles nor a stopped process of another manager can make a request wait. Requests of the same user wait for
// each other, 10 seconds in all.
class FileLocker
{
public:
    // Borrows all three; they must outlive this object.
    FileLocker(const ListFolder &folder, const Caller &caller, const ListTarget &target);

    // Opens an existing file for reading and writing and locks it. As ListFolder::find, and Foreign when the lock does
    // not come in time. A file that another user has locked was not made here; it is removed, and counts as missing.
    FoundFile open(const std::string &name) const;
    // Makes a new, empty file and locks it. Removes the file that has the name, after its lock. Nothing, with the
    // reason on standard error, when that is not possible.
    FileDescriptor makeNew(const std::string &name) const;

private:
    enum class Lock { Held, Failed, Strangers };
    Lock lock(const FileDescriptor &file) const;
    bool mayTryAgain() const;

    const ListFolder &m_folder;
    const Caller &m_caller;
    const ListTarget &m_target;
    const std::chrono::steady_clock::time_point m_end;
};

} // namespace bv
