// SPDX-License-Identifier: GPL-2.0-or-later
// Checks the queues in the background and reports those that have none of the panel's options. Queues of one make and
// model have one driver, so that one of them answers for all.
#pragma once

#include "queues/BackgroundCall.h"
#include "queues/QueueSource.h"

#include <QObject>
#include <QStringList>
#include <vector>

namespace bv {

class PaneSurvey : public QObject
{
    Q_OBJECT

public:
    // `keys` are the PPD options that the panel serves.
    PaneSurvey(std::shared_ptr<const QueueSource> source, std::vector<PrintQueue> queues, QStringList keys,
               QObject *parent = nullptr);

    // Starts the check.
    void start();

signals:
    // `error` says why the queue has no PPD; it is empty when there is a PPD without any of the options.
    void withoutPane(const QString &queue, const QString &error);

private:
    void checkNext();
    void take(const PrintQueue &queue, const Result<bool> &has);

    std::shared_ptr<const QueueSource> m_source;
    std::vector<PrintQueue> m_queues; // still to be checked, the next one at the end
    QStringList m_keys;
    BackgroundCall<Result<bool>> m_call;
};

} // namespace bv
