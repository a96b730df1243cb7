// SPDX-License-Identifier: GPL-2.0-or-later
// The user's own defaults for a queue, as lpoptions(1) keeps them for all programs: of the queue itself or of one of
// its instances ("QUEUE/NAME").
#pragma once

#include "platform/PrintValue.h"
#include "queues/RememberedTickets.h"

#include <QStringList>
#include <cups/ppd.h>
#include <map>
#include <optional>

namespace bv {

// A queue, or one of its instances.
struct QueueInstance
{
    QString queue;
    QString instance; // empty: the queue itself

    // Takes "QUEUE" or "QUEUE/NAME" apart. Names of queues contain no slash.
    static QueueInstance fromName(const QString &name);
    QString name() const { return instance.isEmpty() ? queue : queue + u'/' + instance; }
};

class UserDefaults
{
public:
    using Options = std::map<QString, QString>;

    // `folder` is where store() keeps what it replaces.
    explicit UserDefaults(QString folder = defaultFolder());
    static QString defaultFolder();

    // The entries of the system-wide file and the user's own, which win. The print server's defaults are not among
    // them. Nothing when there is no such instance; a queue always has a set, which may be empty.
    std::optional<Options> options(const QueueInstance &of) const;
    // The names of a queue's instances, in the order of the files.
    QStringList instances(const QString &queue) const;

    // Puts these options, all that the window shows, over the user's entries; an empty value removes one. Paper and
    // sides are written as standard options (media, sides), and entries for what the window shows in another way are
    // taken out. What was there before the first store() is kept for takeBack(). Nothing else in the file changes.
    // Returns a sentence for the user on a failure.
    QString store(const QueueInstance &of, const Options &options) const;
    // Whether store() has replaced something that takeBack() can restore.
    bool canTakeBack(const QueueInstance &of) const;
    // Restores the entries from before the first store(). Returns a sentence for the user on a failure.
    QString takeBack(const QueueInstance &of) const;

private:
    RememberedTickets m_replaced;
};

// A ticket that starts from these options. Standard options (media, sides, print-color-mode …) become the PPD options
// that they stand for, as on the print server; other options that the PPD does not know are kept. Options that belong
// to one job (copies, pages) are left out. Changes the PPD's marks and marks its defaults at the end.
PrintDictionary ticketFromDefaults(const UserDefaults::Options &options, ppd_file_t *ppd);

// The entries of a ticket that can be stored: texts and whole numbers, without what belongs to one job.
UserDefaults::Options defaultsFromTicket(const PrintDictionary &ticket);

} // namespace bv
