// SPDX-License-Identifier: GPL-2.0-or-later
// Opens, creates and replaces files relative to the folder's descriptor.
#include "helper/ListFolder.h"

#include "helper/Diagnostics.h"
#include "platform/RootPath.h"
#include "profiles/ProfilePaths.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr mode_t kListFileMode = 0644;
constexpr mode_t kUnfinishedMode = 0600;
constexpr int kAttempts = 100;
constexpr int kNeverFollow = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

bool isSameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

std::optional<ListFolder> ListFolder::open()
{
    FileDescriptor folder(::open(mapRootPath(kProfileFolder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder) {
        complain("cannot open the folder of the lists", errno);
        return std::nullopt;
    }
    return ListFolder(std::move(folder));
}

bool ListFolder::writableByCaller() const
{
    return faccessat(m_folder.get(), ".", W_OK | X_OK, 0) == 0;
}

FoundFile ListFolder::find(const std::string &name, int access, const Caller &caller, const ListTarget &target) const
{
    // A commit or a swap of the same user may replace the file between two steps. The new one is then judged afresh.
    FoundFile found;
    for (int attempt = 0; attempt < kAttempts && !findOnce(name, access, caller, target, &found); ++attempt)
        found = {};
    return found;
}

// False if the name went to another file meanwhile.
bool ListFolder::findOnce(const std::string &name, int access, const Caller &caller, const ListTarget &target,
                          FoundFile *found) const
{
    // O_PATH opens nothing for reading, so a FIFO or a device has no effect before it is checked.
    found->file = FileDescriptor(openat(m_folder.get(), name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!found->file) {
        found->standing = errno == ENOENT ? Standing::Missing : Standing::Foreign;
        return true;
    }
    found->standing = Standing::Foreign;
    if (fstat(found->file.get(), &found->status) != 0)
        return true;
    if (found->status.st_nlink == 0)
        return false;
    if (!S_ISREG(found->status.st_mode) || found->status.st_nlink != 1 ||
        !caller.acceptsOwner(found->status.st_uid, target)) {
        complain(name + " is no regular file of the user; its owner has the id " +
                 std::to_string(found->status.st_uid));
        return true;
    }
    if (access != O_PATH) {
        const struct stat judged = found->status;
        found->file = FileDescriptor(openat(m_folder.get(), name.c_str(), access | kNeverFollow));
        if (!found->file || fstat(found->file.get(), &found->status) != 0) {
            if (errno == ENOENT)
                return false;
            complain("cannot open a list file", errno);
            return true;
        }
        if (!isSameFile(judged, found->status) || found->status.st_nlink != 1)
            return false;
    }
    found->standing = Standing::Usable;
    return true;
}

FileDescriptor ListFolder::create(const std::string &name, const Caller &caller, const ListTarget &target) const
{
    FileDescriptor file(
        openat(m_folder.get(), name.c_str(), O_RDWR | O_CREAT | O_EXCL | kNeverFollow, kUnfinishedMode));
    if (!file) {
        if (errno != EEXIST)
            complain("cannot make a file beside the list", errno);
        return file;
    }
    const bool given = !caller.isRoot() || fchown(file.get(), target.user, static_cast<gid_t>(-1)) == 0;
    if (!given || fchmod(file.get(), kUnfinishedMode) != 0) {
        const int reason = errno;
        complain("cannot set owner and mode of a new file", reason);
        removeIfNamed(name, file);
        errno = reason;
        return {};
    }
    return file;
}

bool ListFolder::stillNamed(const std::string &name, const FileDescriptor &file) const
{
    struct stat named = {};
    struct stat opened = {};
    return fstat(file.get(), &opened) == 0 && fstatat(m_folder.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           isSameFile(named, opened);
}

bool ListFolder::removeIfNamed(const std::string &name, const FileDescriptor &file) const
{
    if (!stillNamed(name, file) || unlinkat(m_folder.get(), name.c_str(), 0) != 0) {
        complain("cannot remove a file", errno);
        return false;
    }
    return true;
}

bool ListFolder::replace(const std::string &name, const FileDescriptor &file, const std::string &target) const
{
    if (fchmod(file.get(), kListFileMode) != 0 || fsync(file.get()) != 0) {
        complain("cannot finish the new list and flush it to disk", errno);
        return false;
    }
    if (!stillNamed(name, file)) {
        complain("the new list is no longer where it was written");
        return false;
    }
    if (renameat(m_folder.get(), name.c_str(), m_folder.get(), target.c_str()) != 0) {
        complain("cannot rename the new list over the old one", errno);
        return false;
    }
    // Only a user who may rename files here can have replaced the file meanwhile. The request then fails.
    if (!stillNamed(target, file)) {
        complain("another file took the place of the new list");
        return false;
    }
    return flush();
}

bool ListFolder::flush() const
{
    // Some file systems cannot flush a folder and return EINVAL, see fsync(2).
    if (fsync(m_folder.get()) != 0 && errno != EINVAL) {
        complain("cannot flush the folder of the lists to disk", errno);
        return false;
    }
    return true;
}

} // namespace bv
