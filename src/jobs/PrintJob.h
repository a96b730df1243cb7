// Makes a job's options of a ticket, and prints: checks the documents, lets the panel have its say, submits.
#pragma once

#include "jobs/JobSink.h"
#include "platform/HostProtocol.h"

namespace bv {

class QueueSession;

// Each string at the ticket's top level as it is and each integer there in decimal; nothing else of the ticket.
JobOptions ticketOptions(const PrintDictionary &ticket);

// The ticket's options and the standard attributes that keep the print server from adding what contradicts them. An
// attribute that is among the extra ones or in the ticket already stays as it is; the extra ones win over the ticket.
JobOptions jobOptions(const PrintDictionary &ticket, ppd_file_t *ppd, const JobOptions &extra = {});

// A sentence for the first document that cannot be printed (missing, not readable, a folder); empty when all can.
QString checkDocuments(const QStringList &documents);

// What was sent.
struct PrintedJob
{
    std::optional<int> id; // the print server's number for it
    JobOptions options;
};

// What the Print button does: checks the documents before anything is changed, has the panel save its values and asks
// whether printing may go on, then submits. The panel may be null: then the ticket is sent as it is.
Result<PrintedJob> printDocuments(QueueSession &session, PrintPanel *panel, JobSink &sink, const QStringList &documents,
                                  const JobOptions &extra = {});

} // namespace bv
