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

PaneSurvey::PaneSurvey(std::shared_ptr<const QueueSource> source, std::vector<PrintQueue> queues, QStringList keys,
                       QObject *parent)
    : QObject(parent), m_source(std::move(source)), m_queues(queues.rbegin(), queues.rend()), m_keys(std::move(keys))
{}

void PaneSurvey::start()
{
    checkNext();
}

void PaneSurvey::checkNext()
{
    if (m_queues.empty())
        return;
    const PrintQueue queue = m_queues.back();
    m_queues.pop_back();
    m_call.start([source = m_source, name = queue.name,
                  keys = m_keys](CallControl &control) { return hasAny(*source, name, keys, control); },
                 Has::failure(noAnswerSentence()),
                 [this, queue](const Has &has) {
                     take(queue, has);
                     checkNext();
                 });
}

void PaneSurvey::take(const PrintQueue &queue, const Has &has)
{
    std::vector<QString> answered = {queue.name};
    // A failure is this queue's own.
    const bool isForAll = has && !queue.isClass && !queue.makeAndModel.isEmpty();
    const auto isSame = [&queue](const PrintQueue &other) {
        return !other.isClass && other.makeAndModel == queue.makeAndModel;
    };
    for (auto other = m_queues.rbegin(); isForAll && other != m_queues.rend(); ++other)
        if (isSame(*other))
            answered.push_back(other->name);
    if (isForAll)
        std::erase_if(m_queues, isSame);
    if (!has || !has.value())
        for (const QString &name : answered)
            emit withoutPane(name, has.error());
}

} // namespace bv
