// SPDX-License-Identifier: GPL-2.0-or-later
// The list of marked calls.
#include "queues/CancelAtEnd.h"

#include "queues/CallControl.h"

namespace bv {

namespace {

// Without destructors: threads that are left behind may still use them while the program ends.
constinit std::mutex marksMutex;
constinit CancelAtEnd *firstMark = nullptr; // guarded by the mutex
constinit bool hasEnded = false;            // guarded by the mutex

} // namespace

CancelAtEnd::CancelAtEnd(CallControl &control) : m_control(control)
{
    const std::lock_guard lock(marksMutex);
    m_next = firstMark;
    firstMark = this;
    if (hasEnded)
        control.cancel();
}

CancelAtEnd::~CancelAtEnd()
{
    const std::lock_guard lock(marksMutex);
    CancelAtEnd **mark = &firstMark;
    while (*mark != this)
        mark = &(*mark)->m_next;
    *mark = m_next;
}

void cancelForEnd()
{
    const std::lock_guard lock(marksMutex);
    hasEnded = true;
    for (const CancelAtEnd *mark = firstMark; mark; mark = mark->m_next)
        mark->m_control.cancel();
}

} // namespace bv
