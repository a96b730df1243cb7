// SPDX-License-Identifier: GPL-2.0-or-later
// A disk that is full: while it lives, no file of this process grows beyond a size, and a write across it is cut there.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace bvtest {

class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit now = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

} // namespace bvtest
