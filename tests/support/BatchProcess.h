// A bvprint that runs a batch for a test: commands go in one by one, and each answer is read back.
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace bvtest {

// Runs in a home of its own, with the locale C, without a display, and with no print server unless a test names one.
class BatchProcess
{
public:
    BatchProcess();
    ~BatchProcess();
    BatchProcess(const BatchProcess &) = delete;
    BatchProcess &operator=(const BatchProcess &) = delete;

    // To be called before start.
    void setVariable(const QString &name, const QString &value) { m_environment.insert(name, value); }

    // Starts with the arguments and "--batch -" behind them.
    void start(QStringList arguments);
    // Runs to the end with the arguments alone.
    void runToEnd(const QStringList &arguments);

    // The answer to one command; an empty object when none came.
    QJsonObject send(const QString &command);
    // The result in it; undefined when the answer is an error.
    QJsonValue result(const QString &command) { return send(command).value(QStringLiteral("result")); }
    // The sentence in it; empty when the command did not fail.
    QString error(const QString &command) { return send(command).value(QStringLiteral("error")).toString(); }

    // Closes the input, waits for the end, and gives the exit status; -1 when it did not end by itself.
    int finish();

    // What is left after finish: lines that nobody asked for, and standard error.
    QByteArray restOfOutput() { return m_process.readAllStandardOutput(); }
    QByteArray standardError() { return m_process.readAllStandardError(); }

    QString home() const { return m_home.path(); }

private:
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_process;
};

} // namespace bvtest
