// SPDX-License-Identifier: GPL-2.0-or-later
// Takes the locks, and finds out after each wait whether the file still has its name.
#include "helper/FileLocker.h"

#include "helper/Diagnostics.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>

namespace bv {

namespace {

constexpr auto kLimit = std::chrono::seconds(10);
constexpr auto kPause = std::chrono::milliseconds(5);

// Whether a lock on the file may be that of another user. Our own are for writing, and others can open the file, for
// reading, only in the moment before it is renamed.
bool isHeldByStranger(const FileDescriptor &file)
{
    struct stat status = {};
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return fstat(file.get(), &status) == 0 && fcntl(file.get(), F_OFD_GETLK, &whole) == 0 &&
           (whole.l_type == F_RDLCK || (whole.l_type == F_WRLCK && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0));
}

} // namespace

FileLocker::FileLocker(const ListFolder &folder, const Caller &caller, const ListTarget &target)
    : m_folder(folder), m_caller(caller), m_target(target), m_end(std::chrono::steady_clock::now() + kLimit)
{}

bool FileLocker::mayTryAgain() const
{
    if (std::chrono::steady_clock::now() < m_end)
        return true;
    complain("another process of this user holds the list; gave up after 10 seconds");
    return false;
}

FileLocker::Lock FileLocker::lock(const FileDescriptor &file) const
{
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    while (fcntl(file.get(), F_OFD_SETLK, &whole) != 0) {
        if (errno != EAGAIN && errno != EACCES && errno != EINTR) {
            complain("cannot lock a file", errno);
            return Lock::Failed;
        }
        if (isHeldByStranger(file))
            return Lock::Strangers;
        if (!mayTryAgain())
            return Lock::Failed;
        std::this_thread::sleep_for(kPause);
    }
    return Lock::Held;
}

FoundFile FileLocker::open(const std::string &name) const
{
    do {
        FoundFile found = m_folder.find(name, O_RDWR, m_caller, m_target);
        if (found.standing != Standing::Usable)
            return found;
        const Lock lock = this->lock(found.file);
        if (lock == Lock::Failed)
            break;
        // The process that held the lock may have committed or removed the file.
        if (!m_folder.stillNamed(name, found.file))
            continue;
        if (lock == Lock::Strangers) {
            m_folder.removeIfNamed(name, found.file);
            continue;
        }
        if (fstat(found.file.get(), &found.status) != 0)
            break;
        return found;
    } while (mayTryAgain());
    return {};
}

FileDescriptor FileLocker::makeNew(const std::string &name) const
{
    do {
        const FoundFile old = open(name);
        // A new file, so that a process that has the old one open cannot write into it.
        if (old.standing == Standing::Foreign ||
            (old.standing == Standing::Usable && !m_folder.removeIfNamed(name, old.file)))
            return {};
        FileDescriptor file = m_folder.create(name, m_caller, m_target);
        if (!file && errno != EEXIST)
            return {};
        // Before the lock, another process of the user may have put its own file there, or removed this one.
        if (file && lock(file) != Lock::Held)
            return {};
        if (file && m_folder.stillNamed(name, file))
            return file;
    } while (mayTryAgain());
    return {};
}

} // namespace bv
