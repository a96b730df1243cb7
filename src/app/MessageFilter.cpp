// SPDX-License-Identifier: GPL-2.0-or-later
// A message handler that drops a few known remarks, and keeps those that say why there is no window.
#include "app/MessageFilter.h"

#include "queues/Complaint.h"

#include <QStringList>
#include <QtGlobal>
#include <array>
#include <cstdlib>
#include <cstring>

namespace bv {

namespace {

// Beginnings of remarks that are of no use to the user.
constexpr std::array<const char *, 3> kDropped = {
    "Detected locale ",                        // the program supports the locale "C"
    "This plugin does not support ",           // repeated for each window when there is no display
    "QStandardPaths: XDG_RUNTIME_DIR not set", // the program stores nothing there
};

// The beginning of Qt's fatal message when no window system works.
constexpr const char *kNoWindowSystem = "This application failed to start";

constexpr qsizetype kMostComplaints = 8;

QtMessageHandler &previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

// Whether a message is from the window system. The Wayland plug-in uses no logging category of its own.
bool isOfWindowSystem(const QMessageLogContext &context, const QString &text)
{
    return (context.category && std::strncmp(context.category, "qt.qpa.", 7) == 0) ||
           text.startsWith(u"Failed to create wl_display");
}

// Messages of the window system so far. They are shown if the program cannot start.
QStringList &complaints()
{
    static QStringList texts;
    return texts;
}

// Replaces Qt's own exit, which prints a list of plug-ins and dumps core.
[[noreturn]] void endWithoutWindow()
{
    QStringList reasons = complaints();
    // If the display itself gave a reason, the message that its plug-in did not load adds nothing.
    if (reasons.size() > 1)
        reasons.removeIf([](const QString &text) { return text.startsWith(u"Could not load the Qt platform plugin"); });
    QString text = QStringLiteral("No window can be opened: %1.").arg(reasons.join(QStringLiteral("; ")).simplified());
    if (text.contains(u"Could not find the Qt platform plugin \"wayland"))
        text += QStringLiteral(" A Wayland session needs Qt's plug-in for it (the package qt6-wayland).");
    complain(text + QStringLiteral(" Without a display, use bvprint --print or --batch."));
    std::_Exit(2);
}

void filterMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg) {
        if (text.startsWith(QLatin1String(kNoWindowSystem)))
            endWithoutWindow();
    } else {
        if (isOfWindowSystem(context, text)) {
            if (complaints().size() < kMostComplaints)
                complaints().append(text.trimmed());
            return;
        }
        for (const char *beginning : kDropped)
            if (text.startsWith(QLatin1String(beginning)))
                return;
    }
    if (previousHandler())
        previousHandler()(type, context, text);
}

} // namespace

void installMessageFilter()
{
    if (const QtMessageHandler before = qInstallMessageHandler(filterMessage); before != filterMessage)
        previousHandler() = before;
}

} // namespace bv
