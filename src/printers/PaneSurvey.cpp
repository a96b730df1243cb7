// SPDX-License-Identifier: GPL-2.0-or-later
// Fetches one PPD after another in the background, so a slow print server does not block the window.
#include "printers/PaneSurvey.h"

#include <algorithm>

namespace bv {

namespace {

using Has = Result<bool>;

// Whether the queue's PPD has any of the options.
Has hasAny(const QueueSource &source, const QString &queue, const QStringList &keys, CallControl &control)
{
    const Result<PpdText> text = source.ppd(queue, control);
    if (!text)
        return Has::failure(text.error());
    const Result<PpdFile> ppd = PpdFile::open(text.value());
    if (!ppd)
        return Has::failure(ppd.error());
    return std::any_of(keys.begin(), keys.end(), [&ppd](const QString &key) {
        return ppdFindOption(ppd.value().handle(), key.toUtf8().constData()) != nullptr;
    });
}

} // namespace

PaneSurvey::PaneSurvey(std::shared_ptr<const QueueSource> source, QStringList queues, QStringList keys, QObject *parent)
    : QObject(parent), m_source(std::move(source)), m_queues(std::move(queues)), m_keys(std::move(keys))
{}

void PaneSurvey::start()
{
    checkNext();
}

void PaneSurvey::checkNext()
{
    if (m_queues.isEmpty())
        return;
    const QString queue = m_queues.takeFirst();
    m_call.start([source = m_source, queue,
                  keys = m_keys](CallControl &control) { return hasAny(*source, queue, keys, control); },
                 Has::failure(noAnswerSentence()),
                 [this, queue](const Has &has) {
                     if (!has || !has.value())
                         emit withoutPane(queue, has.error());
                     checkNext();
                 });
}

} // namespace bv
