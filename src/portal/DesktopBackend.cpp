// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the descriptions of back ends.
#include "portal/DesktopBackend.h"

#include "portal/BackendNames.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <vector>

namespace bv {

namespace {

constexpr qint64 kMostBytes = 65536;

struct Backend
{
    QString name;
    QStringList desktops;
};

// The entries of a key file. Groups do not matter: a description has only one.
QMap<QString, QString> entriesOf(const QString &path)
{
    QMap<QString, QString> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    for (const QByteArray &line : file.read(kMostBytes).split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (equals > 0 && !line.startsWith('#'))
            entries.insert(QString::fromUtf8(line.left(equals)).trimmed(),
                           QString::fromUtf8(line.mid(equals + 1)).trimmed());
    }
    return entries;
}

std::vector<Backend> printBackends(const QString &folder)
{
    std::vector<Backend> backends;
    const QDir descriptions(folder);
    for (const QString &file : descriptions.entryList({QStringLiteral("*.portal")}, QDir::Files, QDir::Name)) {
        const QMap<QString, QString> entries = entriesOf(descriptions.filePath(file));
        const QString name = entries.value(QStringLiteral("DBusName"));
        const QStringList interfaces = entries.value(QStringLiteral("Interfaces")).split(u';');
        if (!name.isEmpty() && name != QLatin1String(kBackendName) &&
            interfaces.contains(QLatin1String(kPrintInterface)))
            backends.push_back({name, entries.value(QStringLiteral("UseIn")).split(u';')});
    }
    return backends;
}

} // namespace

QString portalFolder()
{
    const QString folder = qEnvironmentVariable("XDG_DESKTOP_PORTAL_DIR");
    return folder.isEmpty() ? QStringLiteral("/usr/share/xdg-desktop-portal/portals") : folder;
}

QString desktopBackend(const QString &folder, const QString &desktops)
{
    const std::vector<Backend> backends = printBackends(folder);
    for (const QString &desktop : desktops.split(u':', Qt::SkipEmptyParts))
        for (const Backend &backend : backends)
            if (backend.desktops.contains(desktop, Qt::CaseInsensitive))
                return backend.name;
    return backends.empty() ? QString() : backends.front().name;
}

} // namespace bv
