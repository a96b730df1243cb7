// SPDX-License-Identifier: GPL-2.0-or-later
// Takes the place of a print server: stores each job in a folder of its own.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

// Job folders are named "job-1", "job-2" and so on. Each holds the options in "options.json" and copies of the
// documents; a job that fails leaves no folder. With an empty folder name, jobs are accepted and dropped.
class FolderSink final : public JobSink
{
public:
    explicit FolderSink(QString folder = QString()) : m_folder(std::move(folder)) {}
    // The note names the job's folder.
    Result<SentJob> submit(const JobRequest &request, CallControl &control) const override;

private:
    QString m_folder;
};

// The folder for jobs when there is no print server: BVPRINT_OUTPUT from the environment, else "bvprint-jobs" in the
// user's state folder.
QString demoOutputFolder();

} // namespace bv
