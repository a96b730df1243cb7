// Reading of a whole file, judged on the open descriptor.
#include "platform/FileContents.h"

#include "platform/Log.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

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
    // One byte more than the file has, so that the end shows at the first read; a file that grows meanwhile is read on.
    std::string text(static_cast<size_t>(about.st_size) + 1, '\0');
    size_t filled = 0;
    for (;;) {
        const ssize_t got = read(fd, text.data() + filled, text.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return refuse(path, std::strerror(errno));
        if (got == 0)
            break;
        filled += static_cast<size_t>(got);
        if (filled > maximum)
            return refuse(path, "too large");
        if (filled == text.size())
            text.resize(filled * 2);
    }
    text.resize(filled);
    return text;
}

} // namespace

std::optional<std::string> fileContents(const std::string &path, size_t maximum)
{
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (fd < 0)
        return refuse(path, std::strerror(errno));
    std::optional<std::string> text;
    try {
        text = readOpenFile(fd, path, maximum);
    } catch (const std::bad_alloc &) {
        diagnosticLine("no memory for a file's contents");
    }
    close(fd);
    return text;
}

} // namespace bv
