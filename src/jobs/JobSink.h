// SPDX-License-Identifier: GPL-2.0-or-later
// A print job, and the interface of its receivers.
#pragma once

#include "platform/Result.h"
#include "queues/CallControl.h"

#include <QStringList>
#include <map>
#include <optional>

namespace bv {

// Values by keyword, as they are sent.
using JobOptions = std::map<QString, QString>;

struct JobRequest
{
    QString queue;
    QString title;
    QStringList documents; // paths; all are printed in one job, in this order
    JobOptions options;
};

// A job that its receiver has confirmed.
struct SentJob
{
    std::optional<int> id; // its number, if the receiver gives it one
    QString note;          // an additional message for the user; may be empty
};

// The sentence for a job whose receiver says nothing at all.
QString unconfirmedSentence();

// A receiver of jobs. Shared with background threads, which may outlive the window.
class JobSink
{
public:
    virtual ~JobSink() = default;
    // Hands the job over; called on a background thread. Keeps the control's progress and gives itself the time that
    // the size of the documents asks for. On a failure, also when the call is canceled, returns a sentence for the
    // user, and nothing is printed; where that is not sure, the sentence says so.
    virtual Result<SentJob> submit(const JobRequest &request, CallControl &control) const = 0;
    // False: the receiver has the documents already, and those of a request are only for looking at.
    virtual bool takesDocuments() const { return true; }
};

} // namespace bv
