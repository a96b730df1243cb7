// SPDX-License-Identifier: GPL-2.0-or-later
// One print queue as the dialog works with it: its ticket, its PPD and what a panel is told about its printer.
#pragma once

#include "platform/HostProtocol.h"
#include "queues/PpdFile.h"
#include "queues/Ticket.h"

#include <optional>

namespace bv {

// Identifies the queue of a session.
struct QueueIdentity
{
    QString name;
    std::optional<QString> deviceUri; // nothing when the print server reports none
    bool hasPrinter = true;           // false: the session has no current printer
};

// The callback object of this queue's panels. It must outlive them.
class QueueSession final : public PrintSession, public PrintPanelCallback
{
public:
    QueueSession(QueueIdentity identity, PpdFile ppd);
    ~QueueSession() override;
    QueueSession(const QueueSession &) = delete;
    QueueSession &operator=(const QueueSession &) = delete;

    const QString &queue() const { return m_identity.name; }
    Ticket &ticket() { return m_ticket; }
    const Ticket &ticket() const { return m_ticket; }

    const Printer *currentPrinter() const override;
    // The dialog has no data items for panels.
    PrintValue data(const QString &) const override { return {}; }

    PMPrintSettings printSettings() override { return &m_ticket; }
    PMPrintSession printSession() override { return this; }
    ppd_file_t *ppdFile() override { return m_ppd.handle(); }

private:
    class QueuePrinter;

    QueueIdentity m_identity;
    PpdFile m_ppd;
    Ticket m_ticket;
    std::unique_ptr<QueuePrinter> m_printer; // null: no current printer
};

} // namespace bv
