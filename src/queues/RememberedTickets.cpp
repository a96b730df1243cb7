// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and writes the remembered tickets.
#include "queues/RememberedTickets.h"

#include "platform/Log.h"
#include "queues/JobOnlyKeys.h"
#include "queues/StateFolder.h"
#include "queues/TicketJson.h"

#include <QFile>
#include <QJsonDocument>

namespace bv {

namespace {

void logLine(const QString &text)
{
    diagnosticLine(text.toStdString());
}

} // namespace

RememberedTickets::RememberedTickets(QString folder) : m_folder(std::move(folder)) {}

QString RememberedTickets::defaultFolder()
{
    return stateFolder() + QStringLiteral("/bvprint/tickets");
}

QString RememberedTickets::filePath(const QString &queue) const
{
    return m_folder + u'/' + safeFileName(queue) + QStringLiteral(".json");
}

std::optional<PrintDictionary> RememberedTickets::load(const QString &queue) const
{
    const QString path = filePath(queue);
    if (!QFile::exists(path))
        return std::nullopt;
    Result<PrintDictionary> ticket = ticketFromFile(path);
    if (ticket)
        return std::move(ticket.value());
    const QString aside = path + QStringLiteral(".unreadable");
    QFile::remove(aside);
    const bool kept = QFile::rename(path, aside);
    logLine(QStringLiteral("remembered choices of \"%1\" not used: %2 %3")
                .arg(queue, ticket.error(), kept ? QStringLiteral("Kept as ") + aside : QString()));
    return std::nullopt;
}

bool RememberedTickets::store(const QString &queue, const PrintDictionary &ticket) const
{
    PrintDictionary kept = ticket;
    removeJobOnlyKeys(&kept);
    const QString path = filePath(queue);
    QString error;
    const bool stored = storeFile(path, QJsonDocument(toJson(kept)).toJson(), &error);
    if (!stored)
        logLine(QStringLiteral("choices of \"%1\" not remembered: %2: %3").arg(queue, path, error));
    return stored;
}

} // namespace bv
