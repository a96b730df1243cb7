// SPDX-License-Identifier: GPL-2.0-or-later
// Runs bvprint in batch mode for a test: sends commands one by one and reads each answer.
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace bvtest {

// Uses a home folder of its own, the locale C, no display, and no print server unless the test names one.
class BatchProcess
{
public:
    BatchProcess();
    ~BatchProcess();
    BatchProcess(const BatchProcess &) = delete;
    BatchProcess &operator=(const BatchProcess &) = delete;

    // Sets an environment variable. Call it before start().
    void setVariable(const QString &name, const QString &value) { m_environment.insert(name, value); }

    // Starts bvprint with these arguments and "--batch -" after them.
    void start(QStringList arguments);
    // Runs bvprint with these arguments only, and waits for its end.
    void runToEnd(const QStringList &arguments);

    // Writes to standard input.
    void input(const QByteArray &bytes) { m_process.write(bytes); }

    // Sends a command. Returns its answer, or an empty object when there is none.
    QJsonObject send(const QString &command);
    // Sends a command. Returns the result in its answer; undefined when the answer is an error.
    QJsonValue result(const QString &command) { return send(command).value(QStringLiteral("result")); }
    // Sends a command. Returns the error in its answer; empty when the command succeeded.
    QString error(const QString &command) { return send(command).value(QStringLiteral("error")).toString(); }

    // Closes the input and waits for the end. Returns the exit status, or -1 when bvprint crashed or did not end.
    int finish();

    // Valid after finish(): output that no send() has read, and standard error.
    QByteArray restOfOutput() { return m_process.readAllStandardOutput(); }
    QByteArray standardError() { return m_process.readAllStandardError(); }

    QString home() const { return m_home.path(); }

private:
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_process;
};

} // namespace bvtest
