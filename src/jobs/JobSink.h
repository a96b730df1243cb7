// SPDX-License-Identifier: GPL-2.0-or-later
// A print job, and the interface of its receivers.
#pragma once

#include "platform/Result.h"

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

// A receiver of jobs. On a failure it returns a sentence for the user, and nothing is printed.
class JobSink
{
public:
    virtual ~JobSink() = default;
    // Returns the job's number, if the receiver gives it one.
    virtual Result<std::optional<int>> submit(const JobRequest &request) = 0;
    // An additional message for the user about the last job. May be empty.
    virtual QString sentNote() const { return {}; }
};

} // namespace bv
