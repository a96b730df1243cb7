// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps the wheel from changing values by accident: over a pop-up, spin box, slider or tab bar without the keyboard
// focus it scrolls the area around.
#pragma once

#include <QObject>

namespace bv {

// Guards all windows of the program, those of panels too, as long as it exists.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit WheelGuard(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace bv
