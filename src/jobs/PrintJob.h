// SPDX-License-Identifier: GPL-2.0-or-later
// Makes a job of a ticket and documents: its options, and the checks before it is sent.
#pragma once

#include "jobs/JobSink.h"
#include "platform/HostProtocol.h"

#include <functional>

namespace bv {

class QueueSession;

// The strings and integers at the ticket's top level; integers in decimal. Ignores all other entries.
JobOptions ticketOptions(const PrintDictionary &ticket);

// The ticket's options, the extra options, and standard attributes that keep the print server from adding defaults that
// contradict them. Extra options override the ticket. Attributes that are set already stay as they are.
JobOptions jobOptions(const PrintDictionary &ticket, ppd_file_t *ppd, const JobOptions &extra = {});

// The number of pages of a document; nothing when it is not known. May take a moment, and may be called on any thread.
using PageCount = std::function<std::optional<int>(const QString &path)>;

// The two checks before a job is made. Both touch the documents and may be called on a background thread. Each returns
// a sentence for the user, or an empty text.

// The first document that cannot be printed (missing, unreadable, a folder), or that there is none.
QString checkDocuments(const QStringList &documents);

// Whether the range of pages in the options, if there is one, can be printed: it belongs to one document, and names no
// page behind its end. An empty function knows no page count.
QString checkRange(const JobOptions &options, const QStringList &documents, const PageCount &pageCount);

// Makes a job that is ready to be handed to a sink, as the Print button does: has the panel save its values, and asks
// it whether to print. The panel may be null; then the ticket is taken unchanged. Without documents the job
// has no title.
// A panel may put values of its own over the user's for this job. `choices`, if not null, receives the ticket as the
// user made it, whether the job is made or not.
Result<JobRequest> prepareJob(QueueSession &session, PrintPanel *panel, const QStringList &documents,
                              const JobOptions &extra = {}, PrintDictionary *choices = nullptr);

} // namespace bv
