// Keeps one panel and its view from the first call to the last, by nothing but the host protocol.
#pragma once

#include "platform/HostProtocol.h"
#include "widgets/ChangeWatcher.h"
#include "widgets/PaneArea.h"

#include <QPointer>

namespace bv {

class PanelHolder : public QObject
{
    Q_OBJECT

public:
    explicit PanelHolder(std::unique_ptr<PrintPanel> panel);
    // Takes the view out of the window, tells the panel that it ends, and lets it go. The callback object and the
    // plug-in must still be there.
    ~PanelHolder() override;

    PrintPanel &panel() { return *m_panel; }

    // Whether the PPD has any of the options that the panel is for.
    bool serves(ppd_file_t *ppd);

    // Asks for the view, which may wait for the network, puts it into an area of the holder's, and restores the values.
    // Returns a sentence for people when the panel gives no view or takes no values; empty when all is well.
    QString prepare();

    // The area with the view, to be placed in a window; null before prepare() and where it failed. The holder owns it.
    QWidget *area() const { return m_area; }

signals:
    // A control of the view reported a change; once a turn of the event loop.
    void changed();

private:
    std::unique_ptr<PrintPanel> m_panel;
    QPointer<PaneArea> m_area;
    ChangeWatcher m_watcher;
};

} // namespace bv
