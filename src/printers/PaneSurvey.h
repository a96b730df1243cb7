// SPDX-License-Identifier: GPL-2.0-or-later
// Checks the queues in the background and reports those that have none of the panel's options.
#pragma once

#include "queues/BackgroundCall.h"
#include "queues/QueueSource.h"

#include <QObject>
#include <QStringList>

namespace bv {

class PaneSurvey : public QObject
{
    Q_OBJECT

public:
    // `keys` are the PPD options that the panel serves.
    PaneSurvey(std::shared_ptr<const QueueSource> source, QStringList queues, QStringList keys,
               QObject *parent = nullptr);

    // Starts the check.
    void start();

signals:
    // `error` says why the queue has no PPD; it is empty when there is a PPD without any of the options.
    void withoutPane(const QString &queue, const QString &error);

private:
    void checkNext();

    std::shared_ptr<const QueueSource> m_source;
    QStringList m_queues; // still to be checked
    QStringList m_keys;
    BackgroundCall<Result<bool>> m_call;
};

} // namespace bv
