// SPDX-License-Identifier: GPL-2.0-or-later
// The receivers of jobs that the dialog of another program has.
#pragma once

#include "jobs/JobSink.h"

#include <memory>
#include <mutex>

namespace bv {

// Keeps a job to which the user agreed, and sends nothing.
class AgreeingReceiver final : public JobSink
{
public:
    bool takesDocuments() const override { return false; }
    Result<SentJob> submit(const JobRequest &request, CallControl &) const override
    {
        const std::lock_guard lock(m_mutex);
        m_job = request;
        return SentJob{std::nullopt, {}};
    }
    // The last one.
    JobRequest job() const
    {
        const std::lock_guard lock(m_mutex);
        return m_job;
    }

private:
    mutable std::mutex m_mutex;
    mutable JobRequest m_job;
};

// Gives jobs the program's title, and passes them on.
class TitledReceiver final : public JobSink
{
public:
    TitledReceiver(std::shared_ptr<const JobSink> next, QString title)
        : m_next(std::move(next)), m_title(std::move(title))
    {}
    Result<SentJob> submit(const JobRequest &request, CallControl &control) const override
    {
        JobRequest titled = request;
        titled.title = m_title;
        return m_next->submit(titled, control);
    }

private:
    std::shared_ptr<const JobSink> m_next;
    QString m_title;
};

} // namespace bv
