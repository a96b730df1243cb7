// SPDX-License-Identifier: GPL-2.0-or-later
// Runs bvprint as a child process.
#include "support/BatchProcess.h"

#include <QJsonDocument>

namespace bvtest {

namespace {

// Milliseconds. Long enough for a busy machine; a test that waits this long has failed.
constexpr int kPatience = 30000;

} // namespace

BatchProcess::BatchProcess() : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const char *variable :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME",
          "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "BVCO_LOG", "LPDEST", "PRINTER"})
        m_environment.remove(QLatin1String(variable));
    m_environment.insert(QStringLiteral("HOME"), m_home.path());
    m_environment.insert(QStringLiteral("BVCO_ROOT"), m_home.filePath(QStringLiteral("system")));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    m_environment.insert(QStringLiteral("CUPS_SERVER"), m_home.filePath(QStringLiteral("no-server")));
}

BatchProcess::~BatchProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }
}

void BatchProcess::start(QStringList arguments)
{
    arguments << QStringLiteral("--batch") << QStringLiteral("-");
    m_process.setProcessEnvironment(m_environment);
    m_process.start(QStringLiteral(BV_BUILD_DIR "/bin/bvprint"), arguments);
    m_process.waitForStarted(kPatience);
}

void BatchProcess::runToEnd(const QStringList &arguments)
{
    m_process.setProcessEnvironment(m_environment);
    m_process.start(QStringLiteral(BV_BUILD_DIR "/bin/bvprint"), arguments);
}

QJsonObject BatchProcess::send(const QString &command)
{
    m_process.write(command.toUtf8() + '\n');
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(kPatience))
            return {};
    return QJsonDocument::fromJson(m_process.readLine()).object();
}

int BatchProcess::finish()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(kPatience) || m_process.exitStatus() != QProcess::NormalExit)
        return -1;
    return m_process.exitCode();
}

} // namespace bvtest
