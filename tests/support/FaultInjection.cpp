// SPDX-License-Identifier: GPL-2.0-or-later
// Preloaded into a program under test: makes a file operation fail, write less, or end the process.
//
// FAULT=CALL:N:ACTION   applies to the N-th call (from 1) of CALL; "any" counts all calls
//   ACTION  ENOSPC, EIO, EROFS   the call fails with this error
//           SHORT                a write writes only half of its bytes
//           KILL                 the process is killed (SIGKILL) before the call
//           TORN                 a write writes half of its bytes, then the process is killed
//           SWAP                 before the call, the name in FAULT_NAME becomes a symbolic link to FAULT_TARGET
//           MOVE                 before the call, FAULT_TARGET is renamed to the name in FAULT_NAME
//           WAIT                 before the call, the process waits until the FIFO in FAULT_NAME was opened for writing
//                                and closed again
// FAULT_LOG=FILE        appends the name of each call to the file, one per line
// FAULT_CLOCK=1         the process does not sleep; its clock is moved forward instead
// FAULT_LOGINS=1        the password database ignores the case of login names, as some databases do
//
// Names of calls: write and pwrite are "write", fsync and fdatasync are "fsync" ("fsync-folder" for a folder), rename
// and renameat are "rename", openat is "open", fcntl with F_OFD_SETLK is "lock". "open" is not logged and not part of
// "any". Calls on descriptors 0 to 2 are left alone and not counted.
#include <algorithm>
#include <cctype>
#include <cerrno>
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
constexpr ErrorRow kErrors[] = {{"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EROFS", EROFS}};

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

enum class Fate { Normal, Fail, Short, Torn };

// Decides what happens to this call. Sets errno or ends the process when the fault says so.
Fate fateOf(std::string_view call)
{
    static int calls = 0;
    const bool counted = call != "open";
    if (counted)
        logCall(call);
    const char *setting = std::getenv("FAULT");
    if (!setting)
        return Fate::Normal;
    const std::string_view fault(setting);
    const size_t first = fault.find(':');
    const size_t second = fault.find(':', first + 1);
    const std::string_view action = fault.substr(second + 1);
    if ((fault.substr(0, first) != call && (fault.substr(0, first) != "any" || !counted)) ||
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
    const Fate fate = fateOf("write");
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

int fsync(int descriptor)
{
    const char *call = isFolder(descriptor) ? "fsync-folder" : "fsync";
    return fateOf(call) == Fate::Fail ? -1 : next<int(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor)
{
    return fateOf("fsync") == Fate::Fail ? -1 : next<int(int)>("fdatasync")(descriptor);
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return fateOf("ftruncate") == Fate::Fail ? -1 : next<int(int, off_t)>("ftruncate")(descriptor, size);
}

int rename(const char *from, const char *to) noexcept
{
    return fateOf("rename") == Fate::Fail ? -1 : next<int(const char *, const char *)>("rename")(from, to);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    return fateOf("rename") == Fate::Fail
               ? -1
               : next<int(int, const char *, int, const char *)>("renameat")(fromFolder, from, toFolder, to);
}

int unlinkat(int folder, const char *name, int flags) noexcept
{
    return fateOf("unlink") == Fate::Fail ? -1 : next<int(int, const char *, int)>("unlinkat")(folder, name, flags);
}

int openat(int folder, const char *name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(more, mode_t) : 0;
    va_end(more);
    return fateOf("open") == Fate::Fail ? -1
                                        : next<int(int, const char *, int, ...)>("openat")(folder, name, flags, mode);
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
    if (command == F_OFD_SETLK && fateOf("lock") == Fate::Fail)
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
