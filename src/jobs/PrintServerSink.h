// SPDX-License-Identifier: GPL-2.0-or-later
// Sends jobs to the print server.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

// Sends all documents in one job, byte by byte as they are. The server detects the format of each. Success is only what
// the server confirmed. A job that fails or is canceled on the way is canceled on the server as well.
class PrintServerSink final : public JobSink
{
public:
    Result<SentJob> submit(const JobRequest &request, CallControl &control) const override;
};

} // namespace bv
