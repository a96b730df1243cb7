// SPDX-License-Identifier: GPL-2.0-or-later
// Detached threads, counted.
#include "platform/DetachedThreads.h"

#include <atomic>
#include <chrono>
#include <system_error>
#include <thread>

namespace bv {

namespace {

// Numbers only: threads that are left behind may still use them while the program ends.
std::atomic<int> runningThreads = 0;
std::atomic<int> unfinishedWorks = 0;

template <typename Condition> void waitFor(Condition condition, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

} // namespace

bool startDetached(std::function<void()> body)
{
    ++runningThreads;
    try {
        std::thread([body = std::move(body)]() mutable {
            body();
            body = nullptr; // what it owns goes before the thread counts as ended
            --runningThreads;
        }).detach();
    } catch (const std::system_error &) {
        --runningThreads;
        return false;
    }
    return true;
}

UnfinishedWork::UnfinishedWork()
{
    ++unfinishedWorks;
}

UnfinishedWork::~UnfinishedWork()
{
    --unfinishedWorks;
}

bool detachedThreadsEnded()
{
    waitFor([] { return unfinishedWorks == 0; }, std::chrono::milliseconds(kFinishMilliseconds));
    // A thread whose call was canceled usually ends within a millisecond.
    waitFor([] { return runningThreads == 0; }, std::chrono::milliseconds(20));
    return runningThreads == 0;
}

} // namespace bv
