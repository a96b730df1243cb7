// Owns an open file descriptor; reads and writes whole texts through descriptors. Free of Qt and libcups.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>

namespace bv {

// Closes its descriptor when it goes.
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
    // Closes it now.
    void reset();

private:
    int m_descriptor = -1;
};

// What follows goes on where a signal interrupts it. A failure leaves its reason in errno.

// read(2): the bytes that came, 0 at the end, -1 on a failure.
ssize_t readSome(int descriptor, std::span<char> buffer);
// Appends all up to the end. Stops once the text is longer than `limit` bytes, so that the caller can tell. False on a
// failure; what came before it is kept. May throw std::bad_alloc.
bool readToEnd(int descriptor, std::string *text, size_t limit = std::string::npos);
// The `size` bytes of a file from `offset` on; nothing when there are fewer. May throw std::bad_alloc.
std::optional<std::string> readAt(int descriptor, size_t offset, size_t size);
// Writes all bytes, in the second form into a file from `offset` on.
bool writeAll(int descriptor, std::string_view bytes);
bool writeAllAt(int descriptor, size_t offset, std::string_view bytes);

// Opens /dev/null in the place of each missing standard descriptor, so that no file that is opened later becomes one.
// With the mode O_RDWR it takes what is written; with O_RDONLY writing fails, as it does without the descriptor.
bool openStandardDescriptors(int mode);

} // namespace bv
