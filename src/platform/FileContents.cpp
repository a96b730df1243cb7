// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a whole file. Type and size are checked on the open descriptor, so the file cannot change in between.
#include "platform/FileContents.h"

#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace bv {

namespace {

std::nullopt_t refuse(const std::string &path, const char *why)
{
    diagnosticLine(formatLog("%@: %@", {path, why}));
    return std::nullopt;
}

std::optional<std::string> readOpenFile(int fd, const std::string &path, size_t maximum)
{
    struct stat about = {};
    if (fstat(fd, &about) != 0 || !S_ISREG(about.st_mode))
        return refuse(path, "no regular file");
    if (static_cast<size_t>(about.st_size) > maximum)
        return refuse(path, "too large");
    std::string text;
    // One byte more than the file's size, so that the first read already finds the end. If the file grows meanwhile,
    // reading continues.
    text.reserve(static_cast<size_t>(about.st_size) + 1);
    if (!readToEnd(fd, &text, maximum))
        return refuse(path, std::strerror(errno));
    if (text.size() > maximum)
        return refuse(path, "too large");
    return text;
}

} // namespace

std::optional<std::string> fileContents(const std::string &path, size_t maximum)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!file)
        return refuse(path, std::strerror(errno));
    return fileContents(file.get(), path, maximum);
}

std::optional<std::string> fileContents(int descriptor, const std::string &name, size_t maximum)
{
    return withoutThrowing(std::nullopt, [&] { return readOpenFile(descriptor, name, maximum); });
}

} // namespace bv
