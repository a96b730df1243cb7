// SPDX-License-Identifier: GPL-2.0-or-later
// Owns an open file descriptor; reads and writes whole texts through descriptors. Free of Qt and libcups.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>

namespace bv {

// Owns a descriptor and closes it on destruction.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() { reset(); }

    explicit operator bool() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    // Hands the descriptor over; the caller closes it.
    int release() { return std::exchange(m_descriptor, -1); }
    // Closes the descriptor now, if there is one.
    void reset();

private:
    int m_descriptor = -1;
};

// The functions below continue after an interruption by a signal. On failure, errno has the reason.

// Calls read(2). Returns the number of bytes read, 0 at the end, -1 on failure.
ssize_t readSome(int descriptor, std::span<char> buffer);
// Appends everything up to the end to *text. Stops early once *text is longer than `limit` bytes; the caller sees that
// from its size. False on failure; what was read before stays in *text. May throw std::bad_alloc.
bool readToEnd(int descriptor, std::string *text, size_t limit = std::string::npos);
// The same until a point in time: false, with errno ETIMEDOUT, when the end has not come by then.
bool readToEndBefore(int descriptor, std::string *text, size_t limit, std::chrono::steady_clock::time_point end);
// Reads exactly `size` bytes of a file from `offset` on. Nothing on failure or when the file has fewer. May throw
// std::bad_alloc.
std::optional<std::string> readAt(int descriptor, size_t offset, size_t size);
// Writes all bytes; writeAllAt writes them into a file from `offset` on. False on failure.
bool writeAll(int descriptor, std::string_view bytes);
bool writeAllAt(int descriptor, size_t offset, std::string_view bytes);

// Opens /dev/null for each closed standard descriptor (0 to 2), so that no file opened later takes its number. With
// mode O_RDWR, writing to it succeeds and is discarded. With O_RDONLY, writing fails as it does on a closed descriptor.
// False on failure.
bool openStandardDescriptors(int mode);

} // namespace bv
