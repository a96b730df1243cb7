// SPDX-License-Identifier: GPL-2.0-or-later
// Says in the window that lists of profiles could not be written, since panel and profile window do not.
#pragma once

#include "platform/Log.h"

#include <QObject>

namespace bv {

class MessageBar;
class PanelLoader;

class ListFailures : public QObject, public LogObserver
{
    Q_OBJECT

public:
    // Both are borrowed; the plug-in is loaded.
    ListFailures(PanelLoader &loader, MessageBar *message);
    ~ListFailures() override;

    void logged(LogSubject subject) override;

private:
    PanelLoader &m_loader;
    MessageBar *m_message;
};

} // namespace bv
