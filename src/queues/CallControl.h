// SPDX-License-Identifier: GPL-2.0-or-later
// What the caller and the thread of a slow call share: time limit, cancel flag and progress.
#pragma once

#include "platform/FileDescriptor.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>

namespace bv {

// All functions may be called from any thread. Once over, a call stays over.
class CallControl
{
public:
    using Clock = std::chrono::steady_clock;
    // Enough for one question and its answer, whatever the server does.
    static constexpr std::chrono::milliseconds kUsualLimit{30000};

    explicit CallControl(std::chrono::milliseconds limit = kUsualLimit) { allow(limit); }
    CallControl(const CallControl &) = delete;
    CallControl &operator=(const CallControl &) = delete;

    // Ends the call as soon as possible. A socket given to watchSocket() is shut down, so that a read that waits ends.
    void cancel();
    bool isCancelled() const { return m_cancelled; }
    // The call has this much time from now on.
    void allow(std::chrono::milliseconds limit) { m_deadline = (Clock::now() + limit).time_since_epoch().count(); }
    Clock::time_point deadline() const { return Clock::time_point(Clock::duration(m_deadline.load())); }
    // Cancelled, or out of time.
    bool isOver() const { return isCancelled() || Clock::now() >= deadline(); }

    // The word that httpConnect2 looks at: not 0 once the call is cancelled. libcups reads it without any lock.
    int *cancelWord() { return &m_cancelWord; }
    // cancel() shuts this socket down; -1 for none. A duplicate is kept, so the caller may close it at any time.
    void watchSocket(int descriptor);

    // Progress in bytes. The sum is 0 while it is unknown.
    void setSum(int64_t bytes) { m_sum = bytes; }
    void addDone(int64_t bytes) { m_done += bytes; }
    int64_t sum() const { return m_sum; }
    int64_t done() const { return m_done; }

private:
    std::atomic<bool> m_cancelled = false;
    int m_cancelWord = 0; // written only through std::atomic_ref
    std::atomic<Clock::rep> m_deadline = 0;
    std::atomic<int64_t> m_sum = 0;
    std::atomic<int64_t> m_done = 0;
    std::mutex m_mutex; // guards m_socket
    FileDescriptor m_socket;
};

} // namespace bv
