// SPDX-License-Identifier: GPL-2.0-or-later
// One call at a time, with a pause between two.
#include "printers/PrinterWatch.h"

namespace bv {

PrinterWatch::PrinterWatch(std::shared_ptr<const QueueSource> source, QObject *parent)
    : QObject(parent), m_source(std::move(source))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPauseMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &PrinterWatch::askNow);
}

void PrinterWatch::start(const std::vector<PrintQueue> &known)
{
    m_call.cancel();
    m_known = known;
    m_pause.start();
}

void PrinterWatch::askNow()
{
    using Queues = Result<std::vector<PrintQueue>>;
    m_pause.stop();
    if (!m_call.isRunning())
        m_call.start([source = m_source](CallControl &control) { return source->queues(control); },
                     Queues::failure(noAnswerSentence()), [this](const Queues &queues) { take(queues); });
}

void PrinterWatch::take(const Result<std::vector<PrintQueue>> &queues)
{
    m_pause.start();
    if (!queues || queues.value() == m_known)
        return;
    m_known = queues.value();
    emit changed(m_known);
}

} // namespace bv
