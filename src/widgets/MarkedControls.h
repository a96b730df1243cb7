// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the controls of a panel's view that carry dynamic properties of the host protocol.
#pragma once

#include <QList>
#include <QWidget>

namespace bv {

// The widgets below the view that have any dynamic property. The others are left out because a name that a widget does
// not have is the dearest of all to ask for: it is compared with every property of its class. Empty without a view.
inline QList<QWidget *> markedControls(const QWidget *view)
{
    QList<QWidget *> controls = view ? view->findChildren<QWidget *>() : QList<QWidget *>();
    controls.removeIf([](const QWidget *control) { return control->dynamicPropertyNames().isEmpty(); });
    return controls;
}

} // namespace bv
