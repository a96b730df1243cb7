// SPDX-License-Identifier: GPL-2.0-or-later
// Foreign windows.
#include "portal/ParentWindow.h"

#include "platform/Log.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <optional>

namespace bv {

namespace {

constexpr QLatin1String kX11("x11:");

std::optional<WId> x11Window(const QString &parent)
{
    if (!parent.startsWith(kX11))
        return std::nullopt;
    bool isNumber = false;
    const uint number = parent.mid(kX11.size()).toUInt(&isNumber, 16);
    return isNumber && number != 0 ? std::optional<WId>(number) : std::nullopt;
}

} // namespace

QByteArray platformFor(const QString &parent)
{
    const bool isX11 = x11Window(parent) && !qEnvironmentVariableIsEmpty("DISPLAY");
    return isX11 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? QByteArray("xcb") : QByteArray();
}

void setParentWindow(QWidget &dialog, const QString &parent, bool isModal)
{
    // Never modal to the whole process: a window of the panel must stay usable.
    dialog.setWindowModality(isModal ? Qt::WindowModal : Qt::NonModal);
    if (parent.isEmpty())
        return;
    const std::optional<WId> number = x11Window(parent);
    const bool canX11 = QGuiApplication::platformName() == u"xcb";
    QWindow *window = number && canX11 ? QWindow::fromWinId(*number) : nullptr;
    if (!window) {
        diagnosticLine("portal: the program's window cannot be used as the dialog's parent: " + parent.toStdString());
        return;
    }
    window->QObject::setParent(&dialog);
    dialog.winId();
    dialog.windowHandle()->setTransientParent(window);
}

} // namespace bv
