// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a function that may wait for the network on a thread of its own, and hands its result to this thread: from the
// event loop (BackgroundCall), or by waiting for it (callWithLimit). Neither ever waits longer than the call's limit,
// even if the thread hangs where nothing can end it, as in a resolver. Such a thread is left behind.
#pragma once

#include "platform/DetachedThreads.h"
#include "queues/CallControl.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <condition_variable>
#include <functional>
#include <memory>
#include <optional>

namespace bv {

// What the two threads of a call share.
template <typename T> struct CallState
{
    explicit CallState(std::chrono::milliseconds limit) : control(limit) {}

    CallControl control;
    std::mutex mutex;
    std::condition_variable finished;
    std::optional<T> result;     // guarded by the mutex
    QObject *receiver = nullptr; // guarded by the mutex; null: nobody wants the result any more
};

template <typename T> using CallFunction = std::function<T(CallControl &)>;

// Runs the function and waits for its result, but not much longer than the limit: then the result is `late`. The
// function must own all that it uses, since it may outlive this call.
template <typename T>
T callWithLimit(CallFunction<T> function, T late, std::chrono::milliseconds limit = CallControl::kUsualLimit)
{
    const auto state = std::make_shared<CallState<T>>(limit);
    const bool started = startDetached([state, function = std::move(function)] {
        T result = function(state->control);
        const std::lock_guard lock(state->mutex);
        state->result = std::move(result);
        state->finished.notify_all();
    });
    std::unique_lock lock(state->mutex);
    // The limit may move while the call gets on.
    while (started && !state->result && !state->control.isOver())
        state->finished.wait_until(lock, state->control.deadline());
    // The thread itself sees that the time is over, and then has the better words.
    constexpr std::chrono::milliseconds kGrace{500};
    if (started)
        state->finished.wait_for(lock, kGrace, [&] { return state->result.has_value(); });
    if (state->result)
        return std::move(*state->result);
    lock.unlock();
    state->control.cancel();
    return late;
}

// One call at a time, for the thread that made this object. Destroying it cancels the call.
template <typename T> class BackgroundCall
{
public:
    BackgroundCall() = default;
    ~BackgroundCall() { cancel(); }
    BackgroundCall(const BackgroundCall &) = delete;
    BackgroundCall &operator=(const BackgroundCall &) = delete;

    // Starts the function, after canceling a call that is under way. `done` gets the result from the event loop, once,
    // or `late` when the limit has passed. The function must own all that it uses, since it may outlive this object.
    void start(CallFunction<T> function, T late, std::function<void(T)> done)
    {
        cancel();
        m_state = std::make_shared<CallState<T>>(CallControl::kUsualLimit);
        m_receiver = std::make_unique<QObject>();
        m_state->receiver = m_receiver.get();
        m_done = std::move(done);
        m_late.emplace(std::move(late));
        const bool started = startDetached([this, state = m_state, function = std::move(function)] {
            T result = function(state->control);
            const std::lock_guard lock(state->mutex);
            state->result = std::move(result);
            // The receiver goes together with this object, and takes events that are still waiting with it.
            if (state->receiver)
                QMetaObject::invokeMethod(
                    state->receiver, [this] { finish(); }, Qt::QueuedConnection);
        });
        auto *watch = new QTimer(m_receiver.get());
        QObject::connect(watch, &QTimer::timeout, m_receiver.get(), [this] {
            constexpr std::chrono::milliseconds kGrace{500};
            if (CallControl::Clock::now() > m_state->control.deadline() + kGrace)
                finish();
        });
        watch->start(kWatchMilliseconds);
        if (!started)
            QMetaObject::invokeMethod(
                m_receiver.get(), [this] { finish(); }, Qt::QueuedConnection);
    }

    // Ends the call as soon as possible; its result still comes.
    void stop()
    {
        if (m_state)
            m_state->control.cancel();
    }

    // Ends the call; its result is dropped.
    void cancel()
    {
        if (!m_state)
            return;
        {
            const std::lock_guard lock(m_state->mutex);
            m_state->receiver = nullptr;
        }
        m_state->control.cancel();
        m_receiver.reset();
        m_state.reset();
    }

    bool isRunning() const { return m_state != nullptr; }
    // Of the running call; null when there is none.
    const CallControl *control() const { return m_state ? &m_state->control : nullptr; }

private:
    static constexpr int kWatchMilliseconds = 250;

    void finish()
    {
        std::optional<T> result;
        {
            const std::lock_guard lock(m_state->mutex);
            result = std::move(m_state->result);
        }
        T value = result ? std::move(*result) : std::move(*m_late);
        const std::function<void(T)> done = std::move(m_done);
        {
            const std::lock_guard lock(m_state->mutex);
            m_state->receiver = nullptr;
        }
        // This may be an event of the receiver, which must not be deleted in its own event. Until it goes, neither its
        // timer nor the event of a thread that ended late may reach this object, which `done` may end.
        QObject *receiver = m_receiver.release();
        for (QTimer *watch : receiver->findChildren<QTimer *>())
            watch->stop();
        QCoreApplication::removePostedEvents(receiver, QEvent::MetaCall);
        receiver->deleteLater();
        m_state->control.cancel();
        m_state.reset();
        done(std::move(value));
    }

    std::shared_ptr<CallState<T>> m_state; // null: no call is under way
    std::unique_ptr<QObject> m_receiver;
    std::function<void(T)> m_done;
    std::optional<T> m_late;
};

} // namespace bv
