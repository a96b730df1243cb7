// SPDX-License-Identifier: GPL-2.0-or-later
// The session's printer and its life.
#include "queues/QueueSession.h"

namespace bv {

class QueueSession::QueuePrinter final : public Printer
{
public:
    explicit QueuePrinter(const QueueIdentity &identity) : m_identity(identity) {}
    QString identifier() const override { return m_identity.name; }
    std::optional<QString> deviceUri() const override { return m_identity.deviceUri; }

private:
    const QueueIdentity &m_identity; // the session's
};

QueueSession::QueueSession(QueueIdentity identity, PpdFile ppd)
    : m_identity(std::move(identity)), m_ppd(std::move(ppd)),
      m_printer(m_identity.hasPrinter ? std::make_unique<QueuePrinter>(m_identity) : nullptr)
{}

QueueSession::~QueueSession() = default;

const Printer *QueueSession::currentPrinter() const
{
    return m_printer.get();
}

} // namespace bv
