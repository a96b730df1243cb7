// SPDX-License-Identifier: GPL-2.0-or-later
// The print server as libcups reaches it: its queues, their PPD files, and the connection that jobs are sent over.
#pragma once

#include "queues/PpdFile.h"

#include <cups/cups.h>
#include <optional>
#include <vector>

namespace bv {

struct HttpClose
{
    void operator()(http_t *http) const { httpClose(http); }
};
using HttpConnection = std::unique_ptr<http_t, HttpClose>;

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
    QString stateMessage; // the server's words on its state; may be empty
};

// The queue's title on screen: its description, or its name if it has none.
QString queueTitle(const PrintQueue &queue);

// Every call opens its own connection and may block. Connecting takes at most kConnectMilliseconds. The server is the
// one that libcups names (CUPS_SERVER, client.conf).
class PrintServer
{
public:
    static constexpr int kConnectMilliseconds = 5000;

    static Result<HttpConnection> connect();
    // All queues, in the server's order; classes are queues as well.
    static Result<std::vector<PrintQueue>> queues();
    // The queue of that name, or the default one when the name is empty.
    static Result<PrintQueue> queue(const QString &name);
    // The PPD file of a queue; a queue without one is a failure.
    static Result<PpdFile> ppd(const QString &queue);
};

} // namespace bv
