// SPDX-License-Identifier: GPL-2.0-or-later
// Reads ahead and delays writing, with one buffer for both.
#include "filter/DocumentStream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace bv {

namespace {

// Bytes are passed on once so many have been read, so that the next program works at the same time.
constexpr size_t kWriteBytes = size_t{128} * 1024;
// Measured: with four times the default there are a quarter of the switches; larger pipes leave the processor's cache.
constexpr int kPipeBytes = 256 * 1024;

// A larger pipe means fewer switches between the programs at its ends. Anything but a pipe stays as it is.
void enlargePipe(int descriptor)
{
    const int bytes = fcntl(descriptor, F_GETPIPE_SZ);
    if (bytes > 0 && bytes < kPipeBytes)
        fcntl(descriptor, F_SETPIPE_SZ, kPipeBytes);
}

} // namespace

DocumentStream::DocumentStream(int input, int output) : m_input(input), m_output(output), m_buffer(kBufferBytes)
{
    enlargePipe(input);
    enlargePipe(output);
}

std::string_view DocumentStream::ahead(size_t wanted)
{
    while (m_end - m_next < wanted && refill()) {
    }
    return {m_buffer.data() + m_next, m_end - m_next};
}

void DocumentStream::pass(uint64_t count)
{
    while (count > 0 && !ahead(1).empty()) {
        const size_t here = size_t(std::min<uint64_t>(count, m_end - m_next));
        advance(here);
        count -= here;
    }
}

void DocumentStream::passLines(uint64_t count)
{
    while (count > 0) {
        const std::string_view text = ahead(2);
        if (text.empty())
            return;
        const size_t end = text.find_first_of("\r\n");
        // After a CR at the end of the buffer, an LF may still follow.
        if (end == text.npos || (end + 1 == text.size() && end > 0)) {
            advance(end == text.npos ? text.size() : end);
            continue;
        }
        advance(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
        --count;
    }
}

void DocumentStream::passToComment()
{
    pass(1);
    while (!ahead(1).empty()) {
        const char *next = m_buffer.data() + m_next;
        const auto *found = static_cast<const char *>(std::memchr(next, '%', m_end - m_next));
        if (!found) {
            advance(m_end - m_next);
            continue;
        }
        advance(size_t(found - next));
        if (atLineStart())
            return;
        advance(1);
    }
}

void DocumentStream::drop(size_t count)
{
    flush();
    advance(count);
    m_begin = m_next;
}

void DocumentStream::put(std::string_view text)
{
    flush();
    write(text);
}

void DocumentStream::flush()
{
    write({m_buffer.data() + m_begin, m_next - m_begin});
    m_begin = m_next;
}

// Makes room in the buffer and reads once. False at the end of the input, on a failure, or when the buffer is full.
bool DocumentStream::refill()
{
    if (m_atEnd || m_writeFailed)
        return false;
    if (m_next - m_begin >= kWriteBytes)
        flush();
    if (m_begin == m_end)
        m_begin = m_next = m_end = 0;
    if (m_end == m_buffer.size()) {
        flush();
        if (m_next == 0)
            return false; // the buffer is full
        std::memmove(m_buffer.data(), m_buffer.data() + m_next, m_end - m_next);
        m_end -= m_next;
        m_begin = m_next = 0;
    }
    ssize_t count = 0;
    do {
        count = ::read(m_input, m_buffer.data() + m_end, m_buffer.size() - m_end);
    } while (count < 0 && errno == EINTR);
    m_readFailed = count < 0;
    m_atEnd = count <= 0;
    m_end += size_t(std::max<ssize_t>(count, 0));
    return !m_atEnd;
}

void DocumentStream::advance(size_t count)
{
    if (count == 0)
        return;
    m_next += count;
    m_before = m_buffer[m_next - 1];
}

void DocumentStream::write(std::string_view bytes)
{
    while (!bytes.empty() && !m_writeFailed) {
        const ssize_t count = ::write(m_output, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(size_t(count));
        else
            m_writeFailed = errno != EINTR;
    }
}

} // namespace bv
