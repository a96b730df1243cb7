// SPDX-License-Identifier: GPL-2.0-or-later
// What the print server knows: its queues and their PPD files.
#pragma once

#include "queues/PpdFile.h"
#include "queues/ServerConnection.h"

#include <QStringList>
#include <optional>
#include <vector>

namespace bv {

// A queue as the print server lists it.
struct PrintQueue
{
    QString name;
    QString description;              // for people; may be empty
    QString location;                 // may be empty
    std::optional<QString> deviceUri; // without user name and password
    bool isDefault = false;
    bool isStopped = false; // jobs wait until someone resumes it
    bool acceptsJobs = true;
    QString stateMessage;     // the server's words on its state; may be empty
    QStringList stateReasons; // keywords such as "toner-low-warning" (RFC 8011, section 5.4.12)
    QString makeAndModel;     // the same for queues with the same driver; may be empty
    bool isClass = false;     // it has the options of its first printer, and no driver of its own

    bool operator==(const PrintQueue &) const = default;
};

// The queue's title on screen: its description, or its name if it has none.
QString queueTitle(const PrintQueue &queue);

// Every call opens its own connection and may take as long as its control allows. Thread-safe. The server is the one
// that libcups names (CUPS_SERVER, client.conf). A server that does not answer is a failure with a sentence of its own,
// never an empty list.
class PrintServer
{
public:
    // All queues, in the server's order; classes are queues as well.
    static Result<std::vector<PrintQueue>> queues(CallControl &control);
    // The queue of that name, or the default one when the name is empty.
    static Result<PrintQueue> queue(const QString &name, CallControl &control);
    // The PPD file of a queue, for a class that of its first member; a queue without one is a failure.
    static Result<PpdText> ppd(const QString &queue, CallControl &control);
};

} // namespace bv
