// SPDX-License-Identifier: GPL-2.0-or-later
// Preloaded into a program under test: makes a file operation fail, write less, or end the process.
//
// FAULT=CALL:N:ACTION   applies to the N-th call (from 1) of CALL; "any" counts all calls but "open", "each" all
//   ACTION  ENOSPC, EIO, EROFS, EACCES, EINTR   the call fails with this error
//           SHORT                a write writes only half of its bytes
//           KILL                 the process is killed (SIGKILL) before the call
//           TORN                 a write writes half of its bytes, then the process is killed
//           SWAP                 before the call, the name in FAULT_NAME becomes a symbolic link to FAULT_TARGET
//           MOVE                 before the call, FAULT_TARGET is renamed to the name in FAULT_NAME
//           WAIT                 before the call, the process waits until the FIFO in FAULT_NAME was opened for writing
//                                and closed again
// FAULT_UNDER=FOLDER    only calls on this folder and what is in it count
// FAULT_LOG=FILE        appends the name of each call to the file, one per line
// FAULT_CLOCK=1         the process does not sleep; its clock is moved forward instead
// FAULT_LOGINS=1        the password database ignores the case of login names, as some databases do
//
// Names of calls: write, pwrite and sendfile are "write", fsync and fdatasync are "fsync" ("fsync-folder" for a
// folder), rename, renameat and renameat2 are "rename", unlink and unlinkat "unlink", link and linkat "link", mkdir and
// mkdirat "mkdir", open and openat "open", fcntl with F_OFD_SETLK is "lock". "open" is logged for the setting "each"
// only. Calls on descriptors 0 to 2 are left alone and not counted.
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <pwd.h>
#include <string>
#include <string_view>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

namespace {

struct ErrorRow
{
    std::string_view name;
    int error;
};
constexpr ErrorRow kErrors[] = {
    {"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EROFS", EROFS}, {"EACCES", EACCES}, {"EINTR", EINTR}};

template <typename Function> Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

void logCall(std::string_view call)
{
    const char *file = std::getenv("FAULT_LOG");
    if (!file)
        return;
    const int log = static_cast<int>(syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_APPEND | O_CREAT, 0666));
    const std::string line = std::string(call) + '\n';
    syscall(SYS_write, log, line.data(), line.size());
    syscall(SYS_close, log);
}

void changeName(std::string_view action)
{
    const char *name = std::getenv("FAULT_NAME");
    const char *target = std::getenv("FAULT_TARGET");
    if (!name || !target)
        std::abort();
    syscall(SYS_unlinkat, AT_FDCWD, name, 0);
    if (action == "SWAP")
        syscall(SYS_symlinkat, target, AT_FDCWD, name);
    else
        syscall(SYS_renameat, AT_FDCWD, target, AT_FDCWD, name);
}

void waitForRelease()
{
    const int gate = static_cast<int>(syscall(SYS_openat, AT_FDCWD, std::getenv("FAULT_NAME"), O_RDONLY));
    char byte;
    while (syscall(SYS_read, gate, &byte, 1) > 0) {
    }
    syscall(SYS_close, gate);
}

bool isFolder(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

timespec slept = {}; // sum of all sleeps with FAULT_CLOCK

void advance(timespec *time, const timespec &by)
{
    time->tv_sec += by.tv_sec + (time->tv_nsec + by.tv_nsec) / 1'000'000'000;
    time->tv_nsec = (time->tv_nsec + by.tv_nsec) % 1'000'000'000;
}

// The path of an open file, or of a name in an open folder. Empty for what has none.
std::string pathOf(int descriptor, const char *name = nullptr)
{
    if (name && *name == '/')
        return name;
    char path[PATH_MAX];
    const std::string link = descriptor == AT_FDCWD ? "/proc/self/cwd" : "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = readlink(link.c_str(), path, sizeof(path));
    std::string whole(path, length > 0 ? static_cast<size_t>(length) : 0);
    return name ? whole.append("/").append(name) : whole;
}

bool concerns(const std::string &path)
{
    const char *under = std::getenv("FAULT_UNDER");
    return !under || path.starts_with(under);
}

enum class Fate { Normal, Fail, Short, Torn };

// Decides what happens to this call. Sets errno or ends the process when the fault says so.
Fate fateOf(std::string_view call, const std::string &path)
{
    static int calls = 0;
    const char *setting = std::getenv("FAULT");
    const std::string_view fault(setting ? setting : "");
    const size_t first = fault.find(':');
    const std::string_view which = fault.substr(0, first);
    if (!concerns(path))
        return Fate::Normal;
    if (call != "open" || which == "each")
        logCall(call);
    if (!setting)
        return Fate::Normal;
    const size_t second = fault.find(':', first + 1);
    const std::string_view action = fault.substr(second + 1);
    if ((which != call && which != "each" && (which != "any" || call == "open")) ||
        ++calls != std::atoi(setting + first + 1))
        return Fate::Normal;
    if (action == "KILL")
        std::raise(SIGKILL);
    if (action == "SWAP" || action == "MOVE")
        changeName(action);
    if (action == "WAIT")
        waitForRelease();
    for (const ErrorRow &row : kErrors) {
        if (row.name == action) {
            errno = row.error;
            return Fate::Fail;
        }
    }
    return action == "SHORT" ? Fate::Short : action == "TORN" ? Fate::Torn : Fate::Normal;
}

// Runs `write` for as many of the `size` bytes as the fault allows.
template <typename Write> ssize_t faultyWrite(int descriptor, size_t size, Write write)
{
    if (descriptor <= STDERR_FILENO)
        return write(size);
    const Fate fate = fateOf("write", pathOf(descriptor));
    if (fate == Fate::Fail)
        return -1;
    const ssize_t written = write(fate == Fate::Normal || size < 2 ? size : size / 2);
    if (fate == Fate::Torn)
        std::raise(SIGKILL);
    return written;
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    return faultyWrite(descriptor, size, [&](size_t part) {
        return next<ssize_t(int, const void *, size_t)>("write")(descriptor, bytes, part);
    });
}

ssize_t pwrite(int descriptor, const void *bytes, size_t size, off_t offset)
{
    return faultyWrite(descriptor, size, [&](size_t part) {
        return next<ssize_t(int, const void *, size_t, off_t)>("pwrite")(descriptor, bytes, part, offset);
    });
}

ssize_t pwrite64(int descriptor, const void *bytes, size_t size, off64_t offset)
{
    return pwrite(descriptor, bytes, size, offset);
}

ssize_t sendfile(int to, int from, off_t *offset, size_t size)
{
    return faultyWrite(to, size, [&](size_t part) {
        return next<ssize_t(int, int, off_t *, size_t)>("sendfile")(to, from, offset, part);
    });
}

ssize_t sendfile64(int to, int from, off64_t *offset, size_t size)
{
    return sendfile(to, from, offset, size);
}

int fsync(int descriptor)
{
    const char *call = isFolder(descriptor) ? "fsync-folder" : "fsync";
    return fateOf(call, pathOf(descriptor)) == Fate::Fail ? -1 : next<int(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor)
{
    return fateOf("fsync", pathOf(descriptor)) == Fate::Fail ? -1 : next<int(int)>("fdatasync")(descriptor);
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return fateOf("ftruncate", pathOf(descriptor)) == Fate::Fail ? -1
                                                                 : next<int(int, off_t)>("ftruncate")(descriptor, size);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return fateOf("fchmod", pathOf(descriptor)) == Fate::Fail ? -1 : next<int(int, mode_t)>("fchmod")(descriptor, mode);
}

int fchown(int descriptor, uid_t user, gid_t group) noexcept
{
    return fateOf("fchown", pathOf(descriptor)) == Fate::Fail
               ? -1
               : next<int(int, uid_t, gid_t)>("fchown")(descriptor, user, group);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    return fateOf("rename", pathOf(toFolder, to)) == Fate::Fail
               ? -1
               : next<int(int, const char *, int, const char *)>("renameat")(fromFolder, from, toFolder, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    return fateOf("rename", pathOf(toFolder, to)) == Fate::Fail
               ? -1
               : next<int(int, const char *, int, const char *, unsigned)>("renameat2")(fromFolder, from, toFolder, to,
                                                                                        flags);
}

int rename(const char *from, const char *to) noexcept
{
    return fateOf("rename", pathOf(AT_FDCWD, to)) == Fate::Fail
               ? -1
               : next<int(const char *, const char *)>("rename")(from, to);
}

int unlinkat(int folder, const char *name, int flags) noexcept
{
    return fateOf("unlink", pathOf(folder, name)) == Fate::Fail
               ? -1
               : next<int(int, const char *, int)>("unlinkat")(folder, name, flags);
}

int unlink(const char *name) noexcept
{
    return fateOf("unlink", pathOf(AT_FDCWD, name)) == Fate::Fail ? -1 : next<int(const char *)>("unlink")(name);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return fateOf("link", pathOf(toFolder, to)) == Fate::Fail
               ? -1
               : next<int(int, const char *, int, const char *, int)>("linkat")(fromFolder, from, toFolder, to, flags);
}

int mkdir(const char *name, mode_t mode) noexcept
{
    return fateOf("mkdir", pathOf(AT_FDCWD, name)) == Fate::Fail ? -1
                                                                 : next<int(const char *, mode_t)>("mkdir")(name, mode);
}

int openat(int folder, const char *name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return fateOf("open", pathOf(folder, name)) == Fate::Fail
               ? -1
               : next<int(int, const char *, int, ...)>("openat")(folder, name, flags, mode);
}

int open(const char *name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return openat(AT_FDCWD, name, flags, mode);
}

int open64(const char *name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(more, mode_t) : 0;
    va_end(more);
    return openat(AT_FDCWD, name, flags, mode);
}

int nanosleep(const timespec *time, timespec *left)
{
    if (!std::getenv("FAULT_CLOCK"))
        return next<int(const timespec *, timespec *)>("nanosleep")(time, left);
    advance(&slept, *time);
    return 0;
}

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const int result = next<int(clockid_t, timespec *)>("clock_gettime")(clock, time);
    if (result == 0)
        advance(time, slept);
    return result;
}

passwd *getpwnam(const char *login)
{
    std::string name(login);
    if (std::getenv("FAULT_LOGINS"))
        std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    return next<passwd *(const char *)>("getpwnam")(name.c_str());
}

int fcntl(int descriptor, int command, ...)
{
    va_list more;
    va_start(more, command);
    void *argument = va_arg(more, void *);
    va_end(more);
    if (command == F_OFD_SETLK && fateOf("lock", pathOf(descriptor)) == Fate::Fail)
        return -1;
    return next<int(int, int, ...)>("fcntl")(descriptor, command, argument);
}

int fcntl64(int descriptor, int command, ...)
{
    va_list more;
    va_start(more, command);
    void *argument = va_arg(more, void *);
    va_end(more);
    return fcntl(descriptor, command, argument);
}

} // extern "C"
#pragma GCC visibility pop
