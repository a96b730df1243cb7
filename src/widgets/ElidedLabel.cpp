// SPDX-License-Identifier: GPL-2.0-or-later
// Draws as much of the text as fits.
#include "widgets/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace bv {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    const auto place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, room, int(place), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace bv
