// The sizes of the scroll area.
#include "host/PaneArea.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace bv {

PaneArea::PaneArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

QSize PaneArea::sizeHint() const
{
    // The whole content, where the base class stops at a share of the screen.
    return widget() ? widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) : QScrollArea::sizeHint();
}

QSize PaneArea::minimumSizeHint() const
{
    constexpr int kWidest = 620;
    const int bar = verticalScrollBar()->sizeHint().width();
    const int content = widget() ? widget()->minimumSizeHint().width() : 0;
    return {std::min(content, kWidest) + bar, QScrollArea::minimumSizeHint().height()};
}

bool PaneArea::eventFilter(QObject *object, QEvent *event)
{
    // Content that changes its size from within must move the area's neighbours, not only grow a scroll bar.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

} // namespace bv
