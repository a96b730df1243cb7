// SPDX-License-Identifier: GPL-2.0-or-later
// What the user is asked about presets: names, and whether something may go.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace bv {

// Asks for a name, and asks again, with the reason and what was typed, while `problem` has a sentence about it. The
// name comes without blanks around it; empty when the user gives up.
QString askPresetName(QWidget *parent, const QString &title, const QString &proposed,
                      const std::function<QString(const QString &name)> &problem);

// Asks whether to do something that cannot be undone. `action` is the button that does it; Cancel is the usual one.
bool askBefore(QWidget *parent, const QString &title, const QString &question, const QString &action);

} // namespace bv
