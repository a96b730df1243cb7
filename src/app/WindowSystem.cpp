// SPDX-License-Identifier: GPL-2.0-or-later
// The choice between a display and none.
#include "app/WindowSystem.h"

#include <QtGlobal>

namespace bv {

Result<QByteArray> windowSystem(const CommandLine &line)
{
    const bool isWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool isX11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    // Printing without a window looks at no display.
    if (line.mode == CommandLine::Mode::Direct)
        return QByteArray("offscreen");
    const bool isBatch = line.mode == CommandLine::Mode::Batch;
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || (!isBatch && (isWayland || isX11)))
        return QByteArray();
    // A batch shows windows if it can, but does not need to. A display that does not answer counts as none.
    if (isBatch)
        return QByteArray(isWayland ? "wayland;" : "") + (isX11 ? "xcb;" : "") + "offscreen";
    if (!line.screenshot.isEmpty())
        return QByteArray("offscreen");
    return Result<QByteArray>::failure(
        QStringLiteral("There is no display for the window (neither DISPLAY nor WAYLAND_DISPLAY is set). "
                       "Without one, use bvprint --print or --batch; see bvprint --help."));
}

} // namespace bv
