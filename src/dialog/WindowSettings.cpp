// SPDX-License-Identifier: GPL-2.0-or-later
// One file of keys and values.
#include "dialog/WindowSettings.h"

#include "platform/Log.h"
#include "queues/StateFolder.h"

#include <QSettings>

namespace bv {

namespace {

const QString kPreviewFolded = QStringLiteral("preview/folded");

QString settingsFile()
{
    return stateFolder() + QStringLiteral("/bvprint/window.ini");
}

} // namespace

bool previewWasFolded()
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(kPreviewFolded, false).toBool();
}

void rememberPreviewFolded(bool folded)
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(kPreviewFolded, folded);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        diagnosticLine(formatLog("folding of the preview not remembered: %@", {settingsFile().toStdString()}));
}

} // namespace bv
