// SPDX-License-Identifier: GPL-2.0-or-later
// One file of keys and values.
#include "dialog/WindowSettings.h"

#include "platform/Log.h"
#include "queues/StateFolder.h"

#include <QSettings>

namespace bv {

namespace {

const QString kPreviewFolded = QStringLiteral("preview/folded");
const QString kWindowSize = QStringLiteral("window/size");
const QString kLastPrinters = QStringLiteral("printers/last");

constexpr qsizetype kMostPrinters = 20;

QString settingsFile()
{
    return stateFolder() + QStringLiteral("/bvprint/window.ini");
}

QVariant load(const QString &key)
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(key);
}

void store(const QString &key, const QVariant &value)
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        diagnosticLine(
            formatLog("%@ not remembered: %@ cannot be written", {key.toStdString(), settingsFile().toStdString()}));
}

} // namespace

bool previewWasFolded()
{
    return load(kPreviewFolded).toBool();
}

void rememberPreviewFolded(bool folded)
{
    store(kPreviewFolded, folded);
}

QSize lastWindowSize()
{
    return load(kWindowSize).toSize();
}

void rememberWindowSize(const QSize &size)
{
    if (size != lastWindowSize())
        store(kWindowSize, size);
}

QStringList lastPrinters()
{
    return load(kLastPrinters).toStringList();
}

void rememberPrinter(const QString &queue)
{
    QStringList printers = lastPrinters();
    if (!printers.isEmpty() && printers.first() == queue)
        return;
    printers.removeAll(queue);
    printers.prepend(queue);
    store(kLastPrinters, printers.mid(0, kMostPrinters));
}

} // namespace bv
