// SPDX-License-Identifier: GPL-2.0-or-later
// Compares what waits now with what waited before.
#include "heldjobs/JobAgent.h"

#include "queues/ServerConnection.h"

#include <algorithm>

namespace bv {

namespace {

// A server that does not answer is asked again after so many intervals.
constexpr int kSilentFactor = 5;

} // namespace

JobAgent::JobAgent(QString program, std::chrono::milliseconds interval)
    : m_program(std::move(program)), m_interval(interval), m_window(new QProcess(this))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &JobAgent::look);
    m_window->setProcessChannelMode(QProcess::ForwardedChannels);
    m_window->setStandardInputFile(QProcess::nullDevice());
    connect(m_window, &QProcess::finished, this, &JobAgent::openNext);
    look();
}

JobAgent::~JobAgent()
{
    m_window->disconnect(this);
    // QProcess would kill the program. Nothing waits for it any more.
    if (m_window->state() != QProcess::NotRunning)
        m_window->setParent(nullptr);
}

void JobAgent::look()
{
    using Jobs = Result<std::vector<WaitingJob>>;
    m_listing.start([](CallControl &control) { return waitingJobs(control); }, Jobs::failure(noAnswerSentence()),
                    [this](const Jobs &jobs) { take(jobs); });
}

void JobAgent::take(const Result<std::vector<WaitingJob>> &jobs)
{
    if (jobs) {
        const std::set<WaitingJob> waiting(jobs.value().begin(), jobs.value().end());
        std::erase_if(m_next, [&waiting](const WaitingJob &one) { return waiting.count(one) == 0; });
        if (m_hasBegun)
            std::set_difference(waiting.begin(), waiting.end(), m_known.begin(), m_known.end(),
                                std::back_inserter(m_next));
        m_hasBegun = true;
        m_known = waiting;
        openNext();
    }
    m_timer.start(jobs ? m_interval : m_interval * kSilentFactor);
    emit looked(bool(jobs));
}

void JobAgent::openNext()
{
    if (m_next.empty() || m_window->state() != QProcess::NotRunning)
        return;
    const int id = m_next.front().id;
    m_next.pop_front();
    m_window->start(m_program, {QStringLiteral("--job"), QString::number(id)});
}

} // namespace bv
