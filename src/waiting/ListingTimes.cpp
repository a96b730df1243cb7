// SPDX-License-Identifier: GPL-2.0-or-later
// Kept in a settings file as lines "SECONDS ADDRESS", the latest first.
#include "waiting/ListingTimes.h"

#include "platform/Log.h"
#include "queues/StateFolder.h"

#include <QSettings>

namespace bv {

namespace {

const QString kListings = QStringLiteral("printers/listings");

constexpr qsizetype kMostPrinters = 20;

QString settingsFile()
{
    return stateFolder() + QStringLiteral("/bvprint/listings.ini");
}

QStringList lines()
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(kListings).toStringList();
}

} // namespace

int64_t lastListing(const QString &address)
{
    for (const QString &line : lines())
        if (line.section(u' ', 1) == address)
            return line.section(u' ', 0, 0).toLongLong();
    return 0;
}

void rememberListing(const QString &address, int64_t seconds)
{
    QStringList kept = lines();
    kept.removeIf([&address](const QString &line) { return line.section(u' ', 1) == address; });
    kept.prepend(QString::number(seconds) + u' ' + address);
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(kListings, kept.mid(0, kMostPrinters));
    settings.sync();
    if (settings.status() != QSettings::NoError)
        diagnosticLine(
            formatLog("the time of a listing not remembered: %@ cannot be written", {settingsFile().toStdString()}));
}

} // namespace bv
