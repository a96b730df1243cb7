// SPDX-License-Identifier: GPL-2.0-or-later
// A label beside a button that says why the button is greyed.
#pragma once

#include "widgets/BreakingLabel.h"

#include <QPointer>

class QAbstractButton;

namespace bv {

class ReasonLabel : public BreakingLabel
{
    Q_OBJECT

public:
    // The button is not owned. `usualTip` is its tool tip while it is enabled.
    ReasonLabel(QAbstractButton *button, QString usualTip, QWidget *parent = nullptr);

    // Greys the button and shows the reason in this label, in the button's tool tip and in its accessible description.
    // An empty reason enables the button and removes the texts.
    void explain(const QString &reason);

private:
    QPointer<QAbstractButton> m_button;
    QString m_usualTip;
};

} // namespace bv
