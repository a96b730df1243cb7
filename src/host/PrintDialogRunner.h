// Opens the print dialog as a window.
#pragma once

#include "host/CommandLine.h"

namespace bv {

class PanelLoader;

// Runs the dialog until it is closed; the exit status of the program. The application object exists, and the plug-in is
// loaded.
int runPrintDialog(const CommandLine &commandLine, PanelLoader &loader);

} // namespace bv
