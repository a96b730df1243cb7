// SPDX-License-Identifier: GPL-2.0-or-later
// The sizes of the scroll area.
#include "widgets/PaneArea.h"

#include "platform/FocusInSight.h"

#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

namespace bv {

PaneArea::PaneArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    keepFocusInSight(this);
}

QSize PaneArea::sizeHint() const
{
    // The base class limits the hint to a part of the screen; this one covers the whole content.
    if (!widget())
        return QScrollArea::sizeHint();
    QSize hint = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    // Always subtracts the width of a scroll bar. Otherwise the hint would change with the bar and make it appear and
    // disappear without end.
    const int narrow = width() - verticalScrollBar()->sizeHint().width();
    if (widget()->hasHeightForWidth())
        hint.setHeight(std::max(hint.height(), widget()->heightForWidth(narrow)));
    return hint;
}

QSize PaneArea::minimumSizeHint() const
{
    constexpr int kWidest = 620;
    const int bar = verticalScrollBar()->sizeHint().width();
    const int content = widget() ? widget()->minimumSizeHint().width() : 0;
    return {std::min(content, kWidest) + bar, QScrollArea::minimumSizeHint().height()};
}

void PaneArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    // Wrapped texts get taller when the area gets narrower.
    if (event->size().width() != event->oldSize().width() && widget() && widget()->hasHeightForWidth())
        updateGeometry();
}

bool PaneArea::eventFilter(QObject *object, QEvent *event)
{
    // When the content changes its size, the layout around this area must change too.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

} // namespace bv
