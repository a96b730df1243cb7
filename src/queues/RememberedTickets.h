// The tickets that the dialog remembers between runs, one JSON file a queue.
#pragma once

#include "platform/PrintValue.h"

#include <QString>
#include <optional>

namespace bv {

class RememberedTickets
{
public:
    // The folder is made when the first ticket is stored. The default is "bvprint/tickets" in the user's state folder.
    explicit RememberedTickets(QString folder = defaultFolder());
    static QString defaultFolder();

    // The ticket last stored for a queue; nothing when there is none. A file that cannot be read as a ticket is kept
    // aside under its name with ".unreadable" behind it, and leaves a line in the diagnostic log.
    std::optional<PrintDictionary> load(const QString &queue) const;

    // Stores a ticket, whole or not at all, without what belongs to one job only (copies, page range). Returns false,
    // with a line in the diagnostic log, when it cannot be written.
    bool store(const QString &queue, const PrintDictionary &ticket) const;

    // The file for a queue: a name that is safe and different for every queue name.
    QString filePath(const QString &queue) const;

private:
    QString m_folder;
};

} // namespace bv
