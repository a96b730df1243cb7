// SPDX-License-Identifier: GPL-2.0-or-later
// Updates a button and the texts that explain its state.
#include "widgets/ReasonLabel.h"

#include "platform/PlainTip.h"

#include <QAbstractButton>

namespace bv {

ReasonLabel::ReasonLabel(QAbstractButton *button, QString usualTip, QWidget *parent)
    : BreakingLabel(parent), m_button(button), m_usualTip(std::move(usualTip))
{
    setObjectName(QStringLiteral("printReason"));
    explain(QString());
}

void ReasonLabel::explain(const QString &reason)
{
    setText(reason);
    if (!m_button)
        return;
    m_button->setEnabled(reason.isEmpty());
    setPlainTip(m_button, reason.isEmpty() ? m_usualTip : reason);
    m_button->setAccessibleDescription(reason.isEmpty() ? m_usualTip : reason);
}

} // namespace bv
