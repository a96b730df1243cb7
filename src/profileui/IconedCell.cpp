// SPDX-License-Identifier: GPL-2.0-or-later
// Drawing of the icon cell.
#include "profileui/IconedCell.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

namespace {

constexpr int kIconSide = 16;
constexpr int kIconLeft = 3;

} // namespace

void IconedCell::drawInteriorWithFrame(QPainter *painter, const QRect &frame, const QImage &image)
{
    if (image.isNull())
        return;
    painter->save();
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(QRect(frame.left() + kIconLeft, frame.top(), kIconSide, kIconSide), image);
    painter->restore();
}

void IconedCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // The table draws the row's selection and focus. The cell itself has only an icon.
    QStyleOptionViewItem background = option;
    background.index = index;
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter, option.widget);
    drawInteriorWithFrame(painter, option.rect, index.data(Qt::DecorationRole).value<QImage>());
}

QSize IconedCell::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {kIconLeft + kIconSide + kIconLeft, kIconSide};
}
