// SPDX-License-Identifier: GPL-2.0-or-later
// Environment, files of options, server. libcups has no call that tells only this: cupsGetDests2 also looks for
// printers on the network, and waits for whoever does that.
#include "queues/DefaultQueue.h"

#include "queues/InputFile.h"

#include <QDir>
#include <QRegularExpression>

namespace bv {

namespace {

constexpr qint64 kLargestFile = qint64{1024} * 1024;

// The queue in a file's line "Default QUEUE[/INSTANCE] OPTIONS"; an instance is a set of the user's options for a
// queue. Empty when there is none.
QString defaultOfFile(const QString &path)
{
    const Result<QByteArray> text = readInputFile(path, path, kLargestFile); // most users have no such file
    static const QRegularExpression line(QStringLiteral("^\\s*default\\s+([^\\s/]+)"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::MultilineOption);
    return text ? line.match(QString::fromUtf8(text.value())).captured(1) : QString();
}

QString defaultOfEnvironment()
{
    const QString first = qEnvironmentVariable("LPDEST");
    const QString second = qEnvironmentVariable("PRINTER");
    // "lp" is what many programs set without meaning a queue.
    return (!first.isEmpty() ? first : second == u"lp" ? QString() : second).section(u'/', 0, 0);
}

} // namespace

QString defaultQueue(ServerConnection &server, const QStringList &existing)
{
    if (const QString chosen = defaultOfEnvironment(); !chosen.isEmpty())
        return existing.contains(chosen) ? chosen : QString();
    const QString systemFolder = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    for (const QString &folder : {QDir::homePath() + QStringLiteral("/.cups"), systemFolder})
        if (QString chosen = defaultOfFile(folder + QStringLiteral("/lpoptions")); existing.contains(chosen))
            return chosen;
    const ServerAnswer answer = server.ask(IppMessage(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)));
    ipp_attribute_t *name =
        answer.isGood() ? ippFindAttribute(answer.message.get(), "printer-name", IPP_TAG_NAME) : nullptr;
    const char *text = name ? ippGetString(name, 0, nullptr) : nullptr;
    return QString::fromUtf8(text ? text : "");
}

} // namespace bv
