// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a batch's commands as events, runs them and answers each with a line of JSON.
#pragma once

#include "batch/BatchCommands.h"
#include "platform/FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <deque>
#include <string_view>

namespace bv {

// Commands keep running while a modal window is open, because they are events like a user's.
class BatchRunner final : public QObject
{
    Q_OBJECT

public:
    // The commands are borrowed.
    explicit BatchRunner(BatchCommands &commands);
    ~BatchRunner() override;

    // Opens the script, or standard input for "-". Returns a sentence when it cannot be read, else an empty string.
    QString open(const QString &script);

    // Runs the whole script in the application's event loop, then closes modal windows that are still open. Returns 0
    // when no command failed, else 1. If an answer cannot be written, the batch ends at once with 1 and a message on
    // standard error.
    int run();

private:
    void read();
    // Cuts what was read into lines. Of a line that is too long only the beginning is kept.
    void cutLines(std::string_view bytes);
    void scheduleTurn();
    void turn();
    void carryOut(const QByteArray &line);
    void answer(const QString &command, const BatchCommands::Outcome &outcome);
    void answerOpenCommand();
    void endUnanswered();

    BatchCommands &m_commands;
    FileDescriptor m_script; // none when it is standard input
    int m_file = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_turn;
    int m_turnsToWait = 0;
    QByteArray m_unfinished;        // the beginning of a line
    bool m_isTooLong = false;       // the unfinished line was answered already
    std::deque<QByteArray> m_lines; // read, but not yet run
    bool m_atEnd = false;
    bool m_failed = false;
    bool m_cannotAnswer = false;
    QString m_openCommand; // running, not yet answered, and sure to answer null; else empty
};

} // namespace bv
