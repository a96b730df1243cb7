// SPDX-License-Identifier: GPL-2.0-or-later
// Calls that are canceled when somebody ends the program, so that they can undo what is half done on a server.
#pragma once

namespace bv {

class CallControl;

// Marks the call for as long as this lives. When the end has come already, the call is canceled at once.
class CancelAtEnd
{
public:
    explicit CancelAtEnd(CallControl &control);
    ~CancelAtEnd();
    CancelAtEnd(const CancelAtEnd &) = delete;
    CancelAtEnd &operator=(const CancelAtEnd &) = delete;

private:
    friend void cancelForEnd();

    CallControl &m_control;
    CancelAtEnd *m_next; // of those that are marked
};

// Cancels all marked calls, and those that will be marked. May be called from any thread.
void cancelForEnd();

} // namespace bv
