// SPDX-License-Identifier: GPL-2.0-or-later
// The table cell that shows a 16 by 16 icon and nothing else.
#pragma once

#include "platform/ClassNames.h"

#include <QStyledItemDelegate>

class QImage;

class IconedCell : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Draws the image over the background, 16 by 16 points, at the frame's top and 3 points right of its left edge. A
    // null image draws nothing.
    static void drawInteriorWithFrame(QPainter *painter, const QRect &frame, const QImage &image);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
