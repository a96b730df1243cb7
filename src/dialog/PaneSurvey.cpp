// SPDX-License-Identifier: GPL-2.0-or-later
// One thread fetches one PPD after another, so a slow print server does not block the window.
#include "dialog/PaneSurvey.h"

#include <algorithm>

namespace bv {

namespace {

bool hasAny(ppd_file_t *ppd, const QStringList &keys)
{
    return std::any_of(keys.begin(), keys.end(),
                       [ppd](const QString &key) { return ppdFindOption(ppd, key.toUtf8().constData()) != nullptr; });
}

} // namespace

PaneSurvey::PaneSurvey(const QueueSource &source, QStringList queues, QStringList keys, QObject *parent)
    : QObject(parent)
{
    m_thread.reset(QThread::create([this, &source, queues = std::move(queues), keys = std::move(keys)] {
        for (const QString &queue : queues) {
            if (m_stop)
                return;
            const Result<PpdFile> ppd = source.ppd(queue);
            // The signal is queued, since its receivers live in another thread.
            if (!ppd)
                emit withoutPane(queue, ppd.error());
            else if (!hasAny(ppd.value().handle(), keys))
                emit withoutPane(queue, QString());
        }
    }));
}

PaneSurvey::~PaneSurvey()
{
    m_stop = true;
    m_thread->wait();
}

void PaneSurvey::start()
{
    m_thread->start();
}

} // namespace bv
