// A print job before it is sent, and where it can go: a print server, or a folder where there is none.
#pragma once

#include "host/Result.h"

#include <QStringList>
#include <map>
#include <optional>

namespace bv {

// Options by keyword, as they are sent.
using JobOptions = std::map<QString, QString>;

struct JobRequest
{
    QString queue;
    QString title;
    QStringList documents; // paths; several are one job, in this order
    JobOptions options;
};

// Where jobs go. A sink reports a failure in a sentence for people, and then nothing is printed.
class JobSink
{
public:
    virtual ~JobSink() = default;
    // The number of the job where it got one.
    virtual Result<std::optional<int>> submit(const JobRequest &request) = 0;
};

// Sends jobs to the print server: one job for all documents, their bytes as they are, each of the format that the
// server finds in them. A document that is refused cancels the job.
class PrintServerSink final : public JobSink
{
public:
    Result<std::optional<int>> submit(const JobRequest &request) override;
};

// Stands in for a print server: leaves each job in a folder of its own, "job-1" and up, with the options in
// "options.json" and copies of the documents. Without a folder it only takes the job.
class FolderSink final : public JobSink
{
public:
    explicit FolderSink(QString folder = QString()) : m_folder(std::move(folder)) {}
    Result<std::optional<int>> submit(const JobRequest &request) override;
    // The folder of the job that was submitted last; empty before, and without a folder.
    const QString &lastJobFolder() const { return m_lastJobFolder; }

private:
    QString m_folder;
    QString m_lastJobFolder;
};

} // namespace bv
