// Stands in for a print server: leaves each job in a folder of its own.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

// Folders are called "job-1" and up; each holds the options in "options.json" and copies of the documents. Without a
// folder the sink only takes the job.
class FolderSink final : public JobSink
{
public:
    explicit FolderSink(QString folder = QString()) : m_folder(std::move(folder)) {}
    Result<std::optional<int>> submit(const JobRequest &request) override;
    // Names the folder of the job that was submitted last; empty before, and without a folder.
    QString sentNote() const override;

private:
    QString m_folder;
    QString m_lastJobFolder;
};

// The folder for jobs where no print server is asked: BVPRINT_OUTPUT from the environment, or "bvprint-jobs" in the
// user's state folder.
QString demoOutputFolder();

} // namespace bv
