// SPDX-License-Identifier: GPL-2.0-or-later
// Gives a held job its options and releases it, or cancels it.
#pragma once

#include "heldjobs/HeldJob.h"
#include "jobs/JobSink.h"

namespace bv {

// The receiver of a dialog on a held job. The job has its documents already. The options of a request replace all that
// the job had; what has a control nowhere stays.
class HeldJobSink final : public JobSink
{
public:
    explicit HeldJobSink(HeldJob job) : m_job(std::move(job)) {}
    // On a failure the job stays held, or the sentence says that this is not sure.
    Result<SentJob> submit(const JobRequest &request, CallControl &control) const override;
    bool takesDocuments() const override { return false; }

private:
    HeldJob m_job;
};

// Cancels a job. Returns a sentence for the user when the server does not.
QString cancelHeldJob(const JobName &name, CallControl &control);

} // namespace bv
