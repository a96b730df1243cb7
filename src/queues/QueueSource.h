// Where the dialog's printers come from: the print server, or one PPD file that stands in for it.
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
    // A queue's PPD, opened anew by each call. May wait for the network; also called from a thread that looks through
    // the queues in the background.
    virtual Result<PpdFile> ppd(const QString &queue) const = 0;
    // False where a session is to have no current printer.
    virtual bool hasPrinter() const { return true; }
};

// The print server that libcups names.
std::unique_ptr<QueueSource> makeServerSource();

// The one queue that a PPD file describes; location is what people read as its place. The failure's sentence says why
// the PPD cannot be used.
Result<std::unique_ptr<QueueSource>> makePpdSource(const SessionRequest &request, const QString &location);

} // namespace bv
