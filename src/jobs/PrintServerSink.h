// SPDX-License-Identifier: GPL-2.0-or-later
// Sends jobs to the print server.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

// Sends all documents in one job, byte by byte as they are. The server detects the format of each. If it refuses a
// document, the whole job is canceled.
class PrintServerSink final : public JobSink
{
public:
    Result<std::optional<int>> submit(const JobRequest &request) override;
};

} // namespace bv
