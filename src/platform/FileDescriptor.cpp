// SPDX-License-Identifier: GPL-2.0-or-later
// Complete reads and writes with read(2), write(2), pread(2) and pwrite(2).
#include "platform/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr size_t kChunk = size_t{16} << 10;

template <typename Call> ssize_t uninterrupted(Call call)
{
    ssize_t result;
    do
        result = call();
    while (result < 0 && errno == EINTR);
    return result;
}

// Calls `write(bytes, offset)` for the remaining bytes until all are written.
template <typename Write> bool writeWhole(std::string_view bytes, size_t offset, Write write)
{
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return write(bytes, static_cast<off_t>(offset)); });
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<size_t>(written));
        offset += static_cast<size_t>(written);
    }
    return true;
}

} // namespace

void FileDescriptor::reset()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

ssize_t readSome(int descriptor, std::span<char> buffer)
{
    return uninterrupted([&] { return read(descriptor, buffer.data(), buffer.size()); });
}

bool readToEnd(int descriptor, std::string *text, size_t limit)
{
    size_t filled = text->size();
    for (;;) {
        if (filled == text->size())
            text->resize(std::max(text->capacity(), filled + kChunk));
        const ssize_t got = readSome(descriptor, std::span(*text).subspan(filled));
        if (got > 0)
            filled += static_cast<size_t>(got);
        if (got <= 0 || filled > limit) {
            text->resize(filled);
            return got >= 0;
        }
    }
}

bool readToEndBefore(int descriptor, std::string *text, size_t limit, std::chrono::steady_clock::time_point end)
{
    std::array<char, kChunk> chunk;
    while (text->size() <= limit) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
        pollfd readable = {descriptor, POLLIN, 0};
        const int ready = left > 0 ? poll(&readable, 1, static_cast<int>(std::min<long>(left, INT_MAX))) : 0;
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0) {
            errno = ready == 0 ? ETIMEDOUT : errno;
            return false;
        }
        const ssize_t got = readSome(descriptor, chunk);
        if (got <= 0)
            return got == 0;
        text->append(chunk.data(), static_cast<size_t>(got));
    }
    return true;
}

std::optional<std::string> readAt(int descriptor, size_t offset, size_t size)
{
    std::string bytes(size, '\0');
    for (size_t filled = 0; filled < size;) {
        const ssize_t got = uninterrupted([&] {
            return pread(descriptor, bytes.data() + filled, size - filled, static_cast<off_t>(offset + filled));
        });
        if (got <= 0)
            return std::nullopt;
        filled += static_cast<size_t>(got);
    }
    return bytes;
}

bool writeAll(int descriptor, std::string_view bytes)
{
    return writeWhole(bytes, 0,
                      [=](std::string_view rest, off_t) { return write(descriptor, rest.data(), rest.size()); });
}

bool writeAllAt(int descriptor, size_t offset, std::string_view bytes)
{
    return writeWhole(bytes, offset, [=](std::string_view rest, off_t at) {
        return pwrite(descriptor, rest.data(), rest.size(), at);
    });
}

bool openStandardDescriptors(int mode)
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", mode) != descriptor)
            return false;
    }
    return true;
}

} // namespace bv
