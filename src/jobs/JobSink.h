// A print job before it is sent, and what takes it.
#pragma once

#include "platform/Result.h"

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
    // What to tell the user about the job that was taken last, beyond that it was; may be empty.
    virtual QString sentNote() const { return {}; }
};

} // namespace bv
