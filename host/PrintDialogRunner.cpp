// A plain window around the panel's view.
#include "host/PrintDialogRunner.h"

#include "host/PanelLoader.h"
#include "host/SessionStart.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>

namespace bv {

int runPrintDialog(const CommandLine &commandLine, PanelLoader &loader)
{
    Result<std::unique_ptr<QueueSession>> session = startSession(commandLine);
    if (!session) {
        std::fprintf(stderr, "bvprint: %s\n", qPrintable(session.error()));
        return 2;
    }
    const std::unique_ptr<PrintPanel> panel = loader.printerPanel(session.value().get());
    if (!panel)
        return 2;
    QWidget window;
    QVBoxLayout layout(&window);
    layout.addWidget(panel->panelView());
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    window.show();
    const int status = QApplication::exec();
    panel->panelView()->setParent(nullptr);
    return status;
}

} // namespace bv
