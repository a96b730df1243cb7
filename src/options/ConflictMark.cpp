// SPDX-License-Identifier: GPL-2.0-or-later
// The mark is an icon: of a pop-up's present item, or of a button.
#include "options/ConflictMark.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSignalBlocker>
#include <QStyle>

namespace bv {

namespace {

// Which item of a pop-up, or (with any number) that the button, has the icon.
constexpr char kMarked[] = "bvConflictMark";

} // namespace

void markConflict(QWidget &control, bool isInConflict)
{
    auto *menu = qobject_cast<QComboBox *>(&control);
    auto *button = qobject_cast<QAbstractButton *>(&control);
    const QVariant before = control.property(kMarked);
    const QVariant now = !isInConflict ? QVariant() : QVariant(menu ? menu->currentIndex() : 0);
    if (before == now || (!menu && !button))
        return;
    const QSignalBlocker quiet(&control);
    const auto show = [&](const QVariant &where, const QIcon &icon) {
        if (menu && where.isValid())
            menu->setItemIcon(where.toInt(), icon);
        else if (button && where.isValid())
            button->setIcon(icon);
    };
    show(before, QIcon());
    show(now, control.style()->standardIcon(QStyle::SP_MessageBoxWarning));
    control.setProperty(kMarked, now);
}

} // namespace bv
