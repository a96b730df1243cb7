// SPDX-License-Identifier: GPL-2.0-or-later
// Where the dialog's printers come from: the print server, or one PPD file in its place.
#pragma once

#include "queues/PrintServer.h"
#include "queues/SessionRequest.h"

#include <memory>
#include <vector>

namespace bv {

// Shared with background threads, which may outlive the window.
class QueueSource
{
public:
    virtual ~QueueSource() = default;

    // Both may take as long as the control allows, and are called on background threads, several at a time.
    // The queues to choose from.
    virtual Result<std::vector<PrintQueue>> queues(CallControl &control) const = 0;
    // The PPD of a queue, read anew by each call.
    virtual Result<PpdText> ppd(const QString &queue, CallControl &control) const = 0;
    // False: sessions have no current printer.
    virtual bool hasPrinter() const { return true; }
};

// The print server that libcups names.
std::shared_ptr<const QueueSource> makeServerSource();

// The single queue that a PPD file describes. `location` is its place as shown to people. The sentence of a failure
// says why the PPD cannot be used.
Result<std::shared_ptr<const QueueSource>> makePpdSource(const SessionRequest &request, const QString &location);

} // namespace bv
