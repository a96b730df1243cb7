// SPDX-License-Identifier: GPL-2.0-or-later
// Notices when the service wants the dialog to end: its end of the pipe to standard input is closed then.
#pragma once

#include "queues/BackgroundCall.h"

#include <QEventLoop>
#include <QSocketNotifier>

namespace bv {

class ClosingWatch : public QObject
{
    Q_OBJECT

public:
    // Standard input must be a pipe. The watch is closed at once if that has ended already.
    ClosingWatch();

    bool isClosed() const { return m_isClosed; }

signals:
    void closed();

private:
    void readOn();

    QSocketNotifier m_notifier;
    bool m_isClosed = false;
};

// Runs a function beside the event loop and waits for its result. The function is told when the watch closes; without a
// watch nothing stops it.
template <typename T> T waitBeside(const ClosingWatch *watch, CallFunction<T> function, T late)
{
    QEventLoop loop;
    BackgroundCall<T> call;
    std::optional<T> result;
    if (watch)
        QObject::connect(watch, &ClosingWatch::closed, &loop, [&call] { call.stop(); });
    call.start(std::move(function), std::move(late), [&](T got) {
        result.emplace(std::move(got));
        loop.quit();
    });
    if (watch && watch->isClosed())
        call.stop();
    loop.exec();
    return std::move(*result);
}

} // namespace bv
