// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the print dialog as a window.
#pragma once

#include "queues/SessionRequest.h"

#include <QStringList>
#include <functional>
#include <memory>

namespace bv {

class JobSink;
class PanelLoader;
class PrintDialog;
class QueueSource;
struct PrintDialogStart;

// The settings for one run of the window.
struct WindowRequest
{
    SessionRequest session;
    QStringList documents;
    QString preset;     // of the user's own, to start from; empty: none
    QString screenshot; // PNG file: saves a picture of the ready window and closes it; empty: none
};

// Runs the dialog until it is closed and returns the program's exit status. The application object must exist and the
// plug-in must be loaded.
int runPrintDialog(const WindowRequest &request, PanelLoader &loader);

// Shows the dialog for other queues and another receiver of its job, and returns the program's exit status. `adapt` may
// change the window before it is shown. The picture is as in WindowRequest.
int showPrintDialog(std::shared_ptr<const QueueSource> source, std::shared_ptr<const JobSink> sink, PanelLoader &loader,
                    PrintDialogStart start, const QString &screenshot,
                    const std::function<void(PrintDialog &)> &adapt = {});

} // namespace bv
