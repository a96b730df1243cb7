// SPDX-License-Identifier: GPL-2.0-or-later
// Threads that nobody waits for, because what they ask may never answer: a print server, a network disk.
#pragma once

#include <functional>

namespace bv {

// Starts a thread that nobody waits for. False when the system has none to give.
bool startDetached(std::function<void()> body);

// Keeps the end of the program back for a moment: until this is destroyed, or for kFinishMilliseconds.
class UnfinishedWork
{
public:
    UnfinishedWork();
    ~UnfinishedWork();
    UnfinishedWork(const UnfinishedWork &) = delete;
    UnfinishedWork &operator=(const UnfinishedWork &) = delete;
};
inline constexpr int kFinishMilliseconds = 1500;

// Call it at the end of main(): waits shortly for unfinished work. False when threads are still running; then the
// program must end without running destructors that they could meet (std::_Exit).
bool detachedThreadsEnded();

} // namespace bv
