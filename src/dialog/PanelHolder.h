// SPDX-License-Identifier: GPL-2.0-or-later
// Owns one panel and its view for their whole life. Uses only the host protocol.
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
    // Takes the view out of the window, tells the panel to end, and deletes it. The callback object and the plug-in
    // must still exist.
    ~PanelHolder() override;

    PrintPanel &panel() { return *m_panel; }

    // True if the PPD has any of the panel's options.
    bool serves(ppd_file_t *ppd);

    // Asks the panel for its view, puts the view into area(), and restores the values. May wait for the network.
    // Returns a sentence for the user when the panel has no view or refuses the values; empty on success.
    QString prepare();

    // Has the panel show the ticket's values again. Returns a sentence for the user when it refuses some.
    QString restoreValues();

    // The scroll area with the view. Null before prepare() and after it failed. Owned by the holder.
    QWidget *area() const { return m_area; }

signals:
    // A control of the view changed. Sent at most once per turn of the event loop.
    void changed();

private:
    std::unique_ptr<PrintPanel> m_panel;
    QPointer<PaneArea> m_area;
    ChangeWatcher m_watcher;
};

} // namespace bv
