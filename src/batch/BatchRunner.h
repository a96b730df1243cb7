// Reads a batch's commands as events, has them carried out and answers each with a line of JSON.
#pragma once

#include "batch/BatchCommands.h"
#include "platform/FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <deque>

namespace bv {

// Commands go on being carried out while a modal window is open: they are events like a user's.
class BatchRunner final : public QObject
{
    Q_OBJECT

public:
    // The commands are borrowed.
    explicit BatchRunner(BatchCommands &commands);
    ~BatchRunner() override;

    // Opens the script, or standard input for "-"; a sentence when it cannot be read, else empty.
    QString open(const QString &script);

    // Carries out the whole script in the application's event loop, ending modal windows that are still open after its
    // last command. 0 when no command failed, else 1. An answer that cannot be written is said on standard error and
    // ends the batch at once, with 1.
    int run();

private:
    void read();
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
    std::deque<QByteArray> m_lines; // read and not carried out
    bool m_atEnd = false;
    bool m_failed = false;
    bool m_cannotAnswer = false;
    QString m_openCommand; // being carried out and not answered, with nothing but null to come; else empty
};

} // namespace bv
