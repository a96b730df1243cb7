// SPDX-License-Identifier: GPL-2.0-or-later
// The batch's event loop.
#include "batch/BatchRunner.h"

#include "platform/TerminalText.h"
#include "queues/Complaint.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bv {

namespace {

// A command that closes a window ends the event loop that ran it, and that loop may still process one round of events.
// So each command runs two rounds after the previous one. By then the code that opened the window has finished.
constexpr int kTurnsBetweenCommands = 2;

constexpr qsizetype kLongestLine = qsizetype{1024} * 1024; // bytes

} // namespace

BatchRunner::BatchRunner(BatchCommands &commands) : m_commands(commands)
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(0);
    connect(&m_turn, &QTimer::timeout, this, &BatchRunner::turn);
}

BatchRunner::~BatchRunner() = default;

QString BatchRunner::open(const QString &script)
{
    if (script != u"-")
        m_script = FileDescriptor(::open(QFile::encodeName(script).constData(), O_RDONLY | O_CLOEXEC));
    m_file = script == u"-" ? STDIN_FILENO : m_script.get();
    struct stat status = {};
    if (m_file < 0 || fstat(m_file, &status) != 0)
        return QStringLiteral("The batch %1 cannot be read: %2.").arg(script, QString::fromLocal8Bit(strerror(errno)));
    if (S_ISDIR(status.st_mode))
        return QStringLiteral("The batch %1 is a folder.").arg(script);
    return {};
}

int BatchRunner::run()
{
    m_notifier = std::make_unique<QSocketNotifier>(m_file, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &BatchRunner::read);
    QCoreApplication::exec();
    m_notifier.reset();
    return m_failed ? 1 : 0;
}

void BatchRunner::read()
{
    char bytes[65536];
    const ssize_t count = ::read(m_file, bytes, sizeof bytes);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count > 0) {
        cutLines({bytes, static_cast<size_t>(count)});
    } else {
        m_notifier->setEnabled(false);
        m_atEnd = true;
        if (!m_unfinished.isEmpty())
            m_lines.push_back(std::move(m_unfinished));
    }
    scheduleTurn();
}

void BatchRunner::cutLines(std::string_view bytes)
{
    while (!bytes.empty()) {
        const size_t end = bytes.find('\n');
        m_unfinished.append(bytes.data(), qsizetype(std::min(end, bytes.size())));
        // Enough is kept of a line that is too long to see that it is. It is answered at once, not at its end.
        if (m_unfinished.size() > kLongestLine && !m_isTooLong) {
            m_isTooLong = true;
            m_lines.push_back(m_unfinished.left(kLongestLine + 1));
        }
        if (m_isTooLong)
            m_unfinished.clear();
        if (end == bytes.npos)
            return;
        if (!m_isTooLong)
            m_lines.push_back(std::move(m_unfinished));
        m_unfinished.clear();
        m_isTooLong = false;
        bytes.remove_prefix(end + 1);
    }
}

void BatchRunner::scheduleTurn()
{
    if (m_turn.isActive() || (m_lines.empty() && !m_atEnd && m_openCommand.isEmpty()))
        return;
    m_turnsToWait = kTurnsBetweenCommands;
    m_turn.start();
}

void BatchRunner::turn()
{
    if (--m_turnsToWait > 0) {
        m_turn.start();
        return;
    }
    // If a command is still running here, it opened a window. Its answer must not wait until that window is closed.
    answerOpenCommand();
    if (m_lines.empty()) {
        if (m_atEnd)
            QCoreApplication::exit();
        return;
    }
    const QByteArray line = std::move(m_lines.front());
    m_lines.pop_front();
    // Scheduled before the command runs, because it may return only after later commands have closed its window.
    scheduleTurn();
    carryOut(line);
}

void BatchRunner::carryOut(const QByteArray &line)
{
    const BatchLine split = splitBatchLine(QString::fromUtf8(line));
    if (split.command.isEmpty())
        return;
    if (line.size() > kLongestLine) {
        constexpr qsizetype kShown = 40; // of a first word that may be the whole line
        answer(split.command.left(kShown), {QJsonValue::Null, QStringLiteral("The line is longer than 1 MB.")});
        return;
    }
    const bool mayAnswerEarly = BatchCommands::answersNull(split.command);
    if (mayAnswerEarly) {
        m_openCommand = split.command;
        // If the command opens a window, that window's event loop sends the answer. A caller may wait for it before
        // sending the next line.
        scheduleTurn();
    }
    const BatchCommands::Outcome outcome = m_commands.run(split);
    // Answered already from a window's own event loop?
    if (!mayAnswerEarly || !m_openCommand.isEmpty()) {
        m_openCommand.clear();
        answer(split.command, outcome);
    }
}

void BatchRunner::answerOpenCommand()
{
    if (m_openCommand.isEmpty())
        return;
    const QString command = m_openCommand;
    m_openCommand.clear();
    answer(command, {});
}

void BatchRunner::answer(const QString &command, const BatchCommands::Outcome &outcome)
{
    if (m_cannotAnswer)
        return;
    QJsonObject object{{QStringLiteral("command"), command}};
    if (outcome.error.isEmpty()) {
        object[u"result"] = outcome.result;
    } else {
        object[u"error"] = outcome.error;
        m_failed = true;
    }
    const std::string json = printableJson(QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString()) + '\n';
    if (std::fwrite(json.data(), 1, json.size(), stdout) != json.size() || std::fflush(stdout) != 0)
        endUnanswered();
}

void BatchRunner::endUnanswered()
{
    complain(QStringLiteral("The answers cannot be written: %1.").arg(QString::fromLocal8Bit(strerror(errno))));
    m_cannotAnswer = true;
    m_failed = true;
    // The remaining commands are not run, because their answers could not be written.
    m_notifier->setEnabled(false);
    m_lines.clear();
    m_atEnd = true;
    scheduleTurn();
}

} // namespace bv
