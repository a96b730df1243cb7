// SPDX-License-Identifier: GPL-2.0-or-later
// Asks the print server again and again, so that a window shows printers as they are now.
#pragma once

#include "queues/BackgroundCall.h"
#include "queues/QueueSource.h"

#include <QObject>
#include <QTimer>

namespace bv {

class PrinterWatch : public QObject
{
    Q_OBJECT

public:
    // A list of 200 printers costs a print server about 20 ms.
    static constexpr int kPauseMilliseconds = 5000;

    explicit PrinterWatch(std::shared_ptr<const QueueSource> source, QObject *parent = nullptr);

    // Goes on from this list. Call it again whenever the list was had otherwise.
    void start(const std::vector<PrintQueue> &known);
    // Asks now instead of at the end of the pause.
    void askNow();

signals:
    // The list is another one than before. A server that does not answer changes nothing.
    void changed(const std::vector<bv::PrintQueue> &queues);

private:
    void take(const Result<std::vector<PrintQueue>> &queues);

    std::shared_ptr<const QueueSource> m_source;
    std::vector<PrintQueue> m_known;
    BackgroundCall<Result<std::vector<PrintQueue>>> m_call;
    QTimer m_pause;
};

} // namespace bv
