// SPDX-License-Identifier: GPL-2.0-or-later
// Where the dialog's printers come from: the print server, or one PPD file in its place.
#pragma once

#include "queues/PrintServer.h"
#include "queues/SessionRequest.h"

#include <memory>
#include <vector>

namespace bv {

class QueueSource
{
public:
    virtual ~QueueSource() = default;

    // The queues to choose from. May wait for the network.
    virtual Result<std::vector<PrintQueue>> queues() = 0;
    // A queue's PPD. Each call opens it again and may wait for the network. Must be thread-safe: a background thread
    // that examines all queues calls it as well.
    virtual Result<PpdFile> ppd(const QString &queue) const = 0;
    // False: sessions have no current printer.
    virtual bool hasPrinter() const { return true; }
};

// The print server that libcups names.
std::unique_ptr<QueueSource> makeServerSource();

// The single queue that a PPD file describes. `location` is its place as shown to people. The sentence of a failure
// says why the PPD cannot be used.
Result<std::unique_ptr<QueueSource>> makePpdSource(const SessionRequest &request, const QString &location);

} // namespace bv
