// SPDX-License-Identifier: GPL-2.0-or-later
// Copies one descriptor to another. Reads ahead, and can leave bytes out or insert some.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace bv {

// Bytes are copied in the order in which they are read, unless they are dropped. After a failure nothing more is read
// or written; readFailed() or writeFailed() reports it, and errno keeps the reason.
class DocumentStream
{
public:
    // The largest argument of ahead().
    static constexpr size_t kBufferBytes = size_t{256} * 1024;

    // Borrows both descriptors; the caller closes them.
    DocumentStream(int input, int output);

    // The next bytes: at least `wanted`, or fewer when the input ends before. Empty at the end of the input. Valid
    // until the next call.
    std::string_view ahead(size_t wanted);
    // True if the next byte begins a line.
    bool atLineStart() const { return m_before == '\n' || m_before == '\r'; }

    // Copies the next `count` bytes, at most up to the end of the input.
    void pass(uint64_t count);
    // Copies the next `count` lines, with any kind of line end.
    void passLines(uint64_t count);
    // Copies at least one byte, and then everything up to the next line that begins with "%".
    void passToComment();
    // Skips bytes that ahead() has returned.
    void drop(size_t count);
    // Inserts text before the next byte.
    void put(std::string_view text);
    // Writes all that was copied. Call it at the end.
    void flush();

    bool readFailed() const { return m_readFailed; }
    bool writeFailed() const { return m_writeFailed; }

private:
    bool refill();
    void advance(size_t count);
    void write(std::string_view bytes);

    int m_input;
    int m_output;
    std::vector<char> m_buffer;
    size_t m_begin = 0;   // start of the copied bytes that are not written yet; they end at m_next
    size_t m_next = 0;    // the next byte
    size_t m_end = 0;     // end of the bytes read so far
    char m_before = '\n'; // the byte before m_next
    bool m_atEnd = false;
    bool m_readFailed = false;
    bool m_writeFailed = false;
};

} // namespace bv
