// Where the dialog's printers come from and its jobs go to: the print server, or one PPD file that stands in for it.
#pragma once

#include "host/CommandLine.h"
#include "host/JobSink.h"
#include "host/PrintServer.h"

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
    // Where jobs go; owned by the source.
    virtual JobSink &sink() = 0;
    // What to tell the user about a job that was taken, beyond that it was; may be empty.
    virtual QString sentNote() const { return {}; }
};

// The print server that libcups names.
std::unique_ptr<QueueSource> makeServerSource();

// The queue that --ppd describes. Its jobs go into folders below outputFolder, one a job. The failure's sentence says
// why the PPD cannot be used.
Result<std::unique_ptr<QueueSource>> makePpdSource(const CommandLine &commandLine, const QString &outputFolder);

// The folder for jobs where no print server is asked: BVPRINT_OUTPUT from the environment, or "bvprint-jobs" in the
// user's state folder (XDG_STATE_HOME).
QString demoOutputFolder();

// The user's state folder: XDG_STATE_HOME where that is an absolute path, else ~/.local/state.
QString stateFolder();

} // namespace bv
