// SPDX-License-Identifier: GPL-2.0-or-later
// The autostart file, and a file for each session that is locked by its agent. The lock tells the number of the process
// that has it, so no number that has become another's is ever used.
#include "heldjobs/AgentSwitch.h"

#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <fcntl.h>

namespace bv {

namespace {

constexpr char kPlacePrefix[] = "bvprint-agent-";
constexpr char kPlaceEnd[] = ".lock";

QString tr(const char *text)
{
    return QCoreApplication::translate("AgentSwitch", text);
}

// A word of an Exec line, in quotes.
QString quoted(const QString &word)
{
    QString text;
    for (const QChar one : word) {
        if (QStringLiteral("\"`$\\").contains(one))
            text += u'\\';
        text += one;
        if (one == u'%')
            text += one;
    }
    return u'"' + text + u'"';
}

// A value of a desktop file.
QString escaped(QString value)
{
    return value.replace(u'\\', QStringLiteral("\\\\")).replace(u'\n', QStringLiteral("\\n"));
}

QByteArray autostartText(const QString &program)
{
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Print dialog for waiting jobs\n"
                                        "Comment=Opens the print dialog for your jobs that the print server holds\n"
                                        "Exec=%1 --agent run\n"
                                        "TryExec=%2\n"
                                        "Icon=vnd.brevane.bvprint\n"
                                        "NoDisplay=true\n")
                             .arg(escaped(quoted(program)), escaped(program));
    return text.toUtf8();
}

QString placeFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QDir::isAbsolutePath(runtime) && QDir(runtime).exists() ? runtime
                                                                   : stateFolder() + QStringLiteral("/bvprint");
}

QString placeName()
{
    QString session = qEnvironmentVariable("WAYLAND_DISPLAY", qEnvironmentVariable("DISPLAY"));
    session.replace(u'/', u'_');
    return QLatin1String(kPlacePrefix) + session + QLatin1String(kPlaceEnd);
}

FileDescriptor openPlace(const QString &path, int flags)
{
    constexpr mode_t kMode = 0600;
    return FileDescriptor(
        open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | flags, kMode));
}

flock wholeFile()
{
    flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

} // namespace

QString agentAutostartFile()
{
    const QString set = qEnvironmentVariable("XDG_CONFIG_HOME");
    const QString folder = QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.config");
    return folder + QStringLiteral("/autostart/bvprint-agent.desktop");
}

QString switchAgentOn(const QString &program)
{
    const QString path = agentAutostartFile();
    QString error;
    return storeFile(path, autostartText(program), &error) ? QString()
                                                           : tr("The file %1 cannot be written: %2.").arg(path, error);
}

QString switchAgentOff()
{
    QFile file(agentAutostartFile());
    return !file.exists() || file.remove()
               ? QString()
               : tr("The file %1 cannot be removed: %2.").arg(file.fileName(), file.errorString());
}

std::vector<pid_t> runningAgents()
{
    std::vector<pid_t> agents;
    const QDir folder(placeFolder());
    const QString pattern = QLatin1String(kPlacePrefix) + u'*' + QLatin1String(kPlaceEnd);
    for (const QString &name : folder.entryList({pattern}, QDir::Files)) {
        const FileDescriptor file = openPlace(folder.filePath(name), 0);
        flock lock = wholeFile();
        if (file && fcntl(file.get(), F_GETLK, &lock) == 0 && lock.l_type == F_WRLCK && lock.l_pid > 0)
            agents.push_back(lock.l_pid);
    }
    return agents;
}

AgentPlace::AgentPlace()
{
    const QDir folder(placeFolder());
    FileDescriptor file =
        QDir().mkpath(folder.path()) ? openPlace(folder.filePath(placeName()), O_CREAT) : FileDescriptor();
    flock lock = wholeFile();
    if (file && fcntl(file.get(), F_SETLK, &lock) == 0)
        m_file = std::move(file);
}

} // namespace bv
