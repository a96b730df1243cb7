// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and writes the remembered tickets.
#include "queues/RememberedTickets.h"

#include "platform/Log.h"
#include "queues/JobOnlyKeys.h"
#include "queues/StateFolder.h"
#include "queues/TicketJson.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace bv {

namespace {

// File names have at most 255 bytes. The difference leaves room for suffixes.
constexpr qsizetype kLongestName = 200;

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
    // Percent-encoding leaves letters, digits, "-" and "_"; a dot in front would hide the file or lead out of the
    // folder, so dots and tildes are encoded as well.
    QByteArray name = queue.toUtf8().toPercentEncoding(QByteArray(), ".~");
    if (name.size() > kLongestName) {
        const QByteArray digest = QCryptographicHash::hash(queue.toUtf8(), QCryptographicHash::Sha256).toHex();
        name = name.left(kLongestName - digest.size() - 1) + '+' + digest;
    }
    return m_folder + u'/' + QString::fromLatin1(name) + QStringLiteral(".json");
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
    const QByteArray json = QJsonDocument(toJson(kept)).toJson();
    QSaveFile file(path);
    // Flushed first, since commit() does not see that a write of its own fails.
    const bool stored = QDir().mkpath(m_folder) && file.open(QIODevice::WriteOnly) && file.write(json) == json.size() &&
                        file.flush() && file.commit();
    if (!stored)
        logLine(QStringLiteral("choices of \"%1\" not remembered: %2: %3").arg(queue, path, file.errorString()));
    return stored;
}

} // namespace bv
