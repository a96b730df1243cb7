// A message handler that drops a few known remarks.
#include "app/MessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <array>
#include <cstring>

namespace bv {

namespace {

// Beginnings of remarks that tell the user of this program nothing.
constexpr std::array<const char *, 3> kDropped = {
    "Detected locale ",                        // the locale "C" is one that this program is to work in
    "This plugin does not support ",           // a window system without a display says so of each window
    "QStandardPaths: XDG_RUNTIME_DIR not set", // nothing is kept there
};

QtMessageHandler &previousHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

void filterMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // A fatal message of the window system must be seen: the program ends with it.
    if (type != QtFatalMsg) {
        if (context.category && std::strncmp(context.category, "qt.qpa.", 7) == 0)
            return;
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
