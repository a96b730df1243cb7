// SPDX-License-Identifier: GPL-2.0-or-later
// Makes a job's options from a ticket, and prints: checks the documents, asks the panel, submits the job.
#pragma once

#include "jobs/JobSink.h"
#include "platform/HostProtocol.h"

namespace bv {

class QueueSession;

// The strings and integers at the ticket's top level; integers in decimal. Ignores all other entries.
JobOptions ticketOptions(const PrintDictionary &ticket);

// The ticket's options, the extra options, and standard attributes that keep the print server from adding defaults that
// contradict them. Extra options override the ticket. Attributes that are set already stay as they are.
JobOptions jobOptions(const PrintDictionary &ticket, ppd_file_t *ppd, const JobOptions &extra = {});

// A sentence for the user about the first document that cannot be printed (missing, unreadable, a folder). Empty when
// all can be printed.
QString checkDocuments(const QStringList &documents);

// A job that was sent.
struct PrintedJob
{
    std::optional<int> id; // the print server's job number, if there is one
    JobOptions options;
};

// Prints as the Print button does. Checks the documents before anything is changed, has the panel save its values, asks
// it whether to print, then submits. The panel may be null; then the ticket is sent unchanged.
Result<PrintedJob> printDocuments(QueueSession &session, PrintPanel *panel, JobSink &sink, const QStringList &documents,
                                  const JobOptions &extra = {});

} // namespace bv
