// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the print dialog as a window.
#pragma once

#include "queues/SessionRequest.h"

#include <QStringList>

namespace bv {

class PanelLoader;

// The settings for one run of the window.
struct WindowRequest
{
    SessionRequest session;
    QStringList documents;
    QString screenshot; // PNG file: saves a picture of the ready window and closes it; empty: none
};

// Runs the dialog until it is closed and returns the program's exit status. The application object must exist and the
// plug-in must be loaded.
int runPrintDialog(const WindowRequest &request, PanelLoader &loader);

} // namespace bv
