// SPDX-License-Identifier: GPL-2.0-or-later
// Writes and removes the user's own description of how the portal is started.
#include "portal/PortalSwitch.h"

#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace bv {

namespace {

using Switched = Result<QString>;

constexpr char kServiceFile[] = "dbus-1/services/org.freedesktop.portal.Desktop.service";
constexpr char kMark[] = "# Written by \"bvportal on\"; \"bvportal off\" removes it.\n";

QString tr(const char *text)
{
    return QCoreApplication::translate("PortalSwitch", text);
}

QStringList dataFolders()
{
    const QString folders = qEnvironmentVariable("XDG_DATA_DIRS");
    return (folders.isEmpty() ? QStringLiteral("/usr/local/share:/usr/share") : folders)
        .split(u':', Qt::SkipEmptyParts);
}

QByteArray contents(const QString &path)
{
    constexpr qint64 kMostBytes = 65536;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(kMostBytes) : QByteArray();
}

// How the bus starts the portal for everybody. Empty when that is not known.
QString portalCommand()
{
    static const QRegularExpression kExec(QStringLiteral("^Exec=([\\w/. -]+)$"), QRegularExpression::MultilineOption);
    for (const QString &folder : dataFolders()) {
        const QRegularExpressionMatch match =
            kExec.match(QString::fromUtf8(contents(folder + u'/' + QLatin1String(kServiceFile))));
        if (match.hasMatch())
            return match.captured(1);
    }
    return {};
}

// Newer portals are told by such files.
QString preferenceFile()
{
    for (const QString &folder : dataFolders()) {
        const QDir portal(folder + QStringLiteral("/xdg-desktop-portal"));
        const QStringList files = portal.entryList({QStringLiteral("*portals.conf")}, QDir::Files, QDir::Name);
        if (!files.isEmpty())
            return portal.filePath(files.first());
    }
    return {};
}

QString userDataFolder()
{
    const QString folder = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.local/share");
}

} // namespace

PortalSwitch::PortalSwitch() : m_file(userDataFolder() + u'/' + QLatin1String(kServiceFile)) {}

bool PortalSwitch::isOn() const
{
    return contents(m_file).startsWith(kMark);
}

Switched PortalSwitch::switchOn() const
{
    if (QFileInfo::exists(m_file) && !isOn())
        return Switched::failure(tr("%1 is there already and is not ours. Remove it, then try again.").arg(m_file));
    if (const QString file = preferenceFile(); !file.isEmpty())
        return Switched::failure(tr("This system's portal goes by files such as %1. Copy the one for your desktop to "
                                    "~/.config/xdg-desktop-portal, and add this line to its part [preferred]:\n"
                                    "org.freedesktop.impl.portal.Print=vnd.brevane.bvprint")
                                     .arg(file));
    const QString command = portalCommand();
    if (command.isEmpty())
        return Switched::failure(tr("The desktop portal is not installed. Install the package xdg-desktop-portal."));
    // The shell puts in the desktop of the session, so that the file holds for each of the user's desktops.
    const QString text =
        QStringLiteral("[D-BUS Service]\nName=org.freedesktop.portal.Desktop\n"
                       "Exec=/bin/sh -c 'XDG_CURRENT_DESKTOP=\"bvprint:$XDG_CURRENT_DESKTOP\" exec %1'\n"
                       "AssumedAppArmorLabel=unconfined\n")
            .arg(command);
    QString error;
    if (!storeFile(m_file, kMark + text.toUtf8(), &error))
        return Switched::failure(tr("%1 cannot be written: %2.").arg(m_file, error));
    return tr("Programs that print through the portal show this dialog from your next login on.");
}

Switched PortalSwitch::switchOff() const
{
    if (!isOn())
        return tr("It is off already.");
    if (!QFile::remove(m_file))
        return Switched::failure(tr("%1 cannot be removed.").arg(m_file));
    return tr("Programs that print through the portal show the desktop's own dialog from your next login on.");
}

} // namespace bv
