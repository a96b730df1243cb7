// A message handler that drops a few known remarks, and keeps those that say why there is no window.
#include "app/MessageFilter.h"

#include <QStringList>
#include <QtGlobal>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace bv {

namespace {

// Beginnings of remarks that tell the user of this program nothing.
constexpr std::array<const char *, 3> kDropped = {
    "Detected locale ",                        // the locale "C" is one that this program is to work in
    "This plugin does not support ",           // a window system without a display says so of each window
    "QStandardPaths: XDG_RUNTIME_DIR not set", // nothing is kept there
};

// The beginning of Qt's last words when no window system will have it.
constexpr const char *kNoWindowSystem = "This application failed to start";

constexpr qsizetype kMostComplaints = 8;

QtMessageHandler &previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

// Whether the window system speaks. The Wayland plug-in does so under no name of its own.
bool isOfWindowSystem(const QMessageLogContext &context, const QString &text)
{
    return (context.category && std::strncmp(context.category, "qt.qpa.", 7) == 0) ||
           text.startsWith(u"Failed to create wl_display");
}

// What the window system complained about so far, should it turn out that the program cannot start for it.
QStringList &complaints()
{
    static QStringList texts;
    return texts;
}

// In place of Qt's own end, which is a list of plug-ins and a core dump.
[[noreturn]] void endWithoutWindow()
{
    QStringList reasons = complaints();
    // Where the display's own complaint is known, that its plug-in did not load says nothing more.
    if (reasons.size() > 1)
        reasons.removeIf([](const QString &text) { return text.startsWith(u"Could not load the Qt platform plugin"); });
    QString text = QStringLiteral("No window can be opened: %1.").arg(reasons.join(QStringLiteral("; ")).simplified());
    if (text.contains(u"Could not find the Qt platform plugin \"wayland"))
        text += QStringLiteral(" A Wayland session needs Qt's plug-in for it (the package qt6-wayland).");
    std::fprintf(stderr, "bvprint: %s Without a display, use bvprint --batch.\n", text.toUtf8().constData());
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
