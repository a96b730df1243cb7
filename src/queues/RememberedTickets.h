// SPDX-License-Identifier: GPL-2.0-or-later
// The tickets that the dialog remembers between runs, one JSON file per queue.
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

    // The ticket last stored for a queue; nothing when there is none. If the file is not a valid ticket, it is renamed
    // by appending ".unreadable", with a line in the diagnostic log.
    std::optional<PrintDictionary> load(const QString &queue) const;

    // Stores a ticket atomically, without the keys that belong to one job only (copies, page range). If it cannot be
    // written, returns false and leaves a line in the diagnostic log.
    bool store(const QString &queue, const PrintDictionary &ticket) const;

    // The path of a queue's file. Its name is safe for any queue name and different for each.
    QString filePath(const QString &queue) const;

private:
    QString m_folder;
};

} // namespace bv
