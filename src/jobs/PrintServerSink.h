// Sends jobs to the print server.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

// One job for all documents, their bytes as they are, each of the format that the server finds in them. A document that
// is refused cancels the job.
class PrintServerSink final : public JobSink
{
public:
    Result<std::optional<int>> submit(const JobRequest &request) override;
};

} // namespace bv
