// SPDX-License-Identifier: GPL-2.0-or-later
// The user's own jobs that the print server holds until somebody decides.
#pragma once

#include "platform/Result.h"
#include "queues/CallControl.h"

#include <cstdint>
#include <vector>

namespace bv {

struct WaitingJob
{
    int id = 0;
    int64_t created = 0; // seconds since 1970; a server that was set up anew counts its jobs from 1 again

    friend bool operator<(const WaitingJob &one, const WaitingJob &other)
    {
        return one.id != other.id ? one.id < other.id : one.created < other.created;
    }
};

// Whole jobs of all queues, oldest first. A job that is held until a time of day is not among them: it waits for
// nobody.
Result<std::vector<WaitingJob>> waitingJobs(CallControl &control);

} // namespace bv
