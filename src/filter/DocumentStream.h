// A descriptor read ahead and copied to another one, with the means to leave out and to put in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace bv {

// Bytes are passed on in the order in which they are read, unless they are dropped. A failure ends all reading and
// writing; it is told by readFailed() and writeFailed(), and errno keeps its reason.
class DocumentStream
{
public:
    // The most that ahead() can be asked for.
    static constexpr size_t kBufferBytes = size_t{256} * 1024;

    // Borrows both descriptors.
    DocumentStream(int input, int output);

    // The bytes that come next: at least `wanted` of them where the input still has so many. Empty at its end. Valid
    // until the next call.
    std::string_view ahead(size_t wanted);
    // Whether the next byte begins a line.
    bool atLineStart() const { return m_before == '\n' || m_before == '\r'; }

    // Passes on the next bytes, up to the end of the input.
    void pass(uint64_t count);
    // Passes on the next lines, whatever their line ends are.
    void passLines(uint64_t count);
    // Passes on at least one byte, and all until a line begins with "%".
    void passToComment();
    // Leaves out bytes that ahead() has shown.
    void drop(size_t count);
    // Writes text of its own in front of what comes next.
    void put(std::string_view text);
    // Writes all that was passed on. To be called at the end.
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
    size_t m_begin = 0;   // passed on, not written yet: from here to m_next
    size_t m_next = 0;    // comes next
    size_t m_end = 0;     // read so far
    char m_before = '\n'; // the byte before m_next
    bool m_atEnd = false;
    bool m_readFailed = false;
    bool m_writeFailed = false;
};

} // namespace bv
