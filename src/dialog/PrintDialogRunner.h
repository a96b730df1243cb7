// Opens the print dialog as a window.
#pragma once

#include "queues/SessionRequest.h"

#include <QStringList>

namespace bv {

class PanelLoader;

// What the window is opened for.
struct WindowRequest
{
    SessionRequest session;
    QStringList documents;
    QString screenshot; // a PNG file for a picture of the ready window, which is then closed; empty: none
};

// Runs the dialog until it is closed; the exit status of the program. The application object exists, and the plug-in is
// loaded.
int runPrintDialog(const WindowRequest &request, PanelLoader &loader);

} // namespace bv
