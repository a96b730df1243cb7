// SPDX-License-Identifier: GPL-2.0-or-later
// A batch on a held job, and the job that a command line names.
#pragma once

#include "heldjobs/HeldJob.h"
#include "queues/QueueSession.h"
#include "queues/SessionRequest.h"

#include <memory>

namespace bv {

class JobSink;
class PanelLoader;

// The job of a command line: `job` as in --job, the queue of the request if it names one. Waits for the print server,
// up to CallControl::kUsualLimit.
Result<HeldJob> heldJobOf(const SessionRequest &request, const QString &job);

// What a batch works on: the session's ticket has the job's options, and the sink releases the job.
struct HeldJobSession
{
    std::unique_ptr<QueueSession> session;
    std::shared_ptr<const JobSink> sink;
};

// Has a panel of its own put the options where the batch's panel finds them. Waits as heldJobOf() does.
Result<HeldJobSession> startHeldJobSession(const SessionRequest &request, const QString &job, PanelLoader &loader);

} // namespace bv
