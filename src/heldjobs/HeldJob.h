// SPDX-License-Identifier: GPL-2.0-or-later
// A job that the print server holds until somebody releases it.
#pragma once

#include "heldjobs/JobAttributes.h"
#include "platform/Result.h"
#include "queues/ServerConnection.h"

#include <QDateTime>

namespace bv {

// Names a job as users do.
struct JobName
{
    int id = 0;    // 0: no job
    QString queue; // where it must be; empty: anywhere

    // Takes "12" or "QUEUE-12", as lp(1) shows it. No job when the text is neither.
    static JobName fromText(const QString &text);
};

struct HeldJob
{
    int id = 0;
    QString queue;
    QString title;
    int documents = 0;
    QString documentName; // of a job's only document; empty where the server does not know it
    QDateTime sent;
    JobAttributes attributes;
};

// The job, if it is held, whole, and this user's own. The sentence of a failure says why it is not.
Result<HeldJob> findHeldJob(const JobName &name, CallControl &control);
// The same on an open connection.
Result<HeldJob> findHeldJob(ServerConnection &server, const JobName &name);

// A request about the job.
IppMessage jobRequest(ipp_op_t operation, const JobName &name);

// The name of the queue that a "job-printer-uri" names; empty when it names none.
QString queueOfUri(const QString &uri);
// Whether a job belongs to the user that libcups names.
bool isOwnJob(const QString &owner);
// Whether one of the values of "job-state-reasons" says that documents are still to come.
bool isIncomplete(ipp_attribute_t *reasons);

} // namespace bv
