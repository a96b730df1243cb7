// The sizes of the scroll area.
#include "widgets/PaneArea.h"

#include <QResizeEvent>
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
    if (!widget())
        return QScrollArea::sizeHint();
    QSize hint = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    // Reckoned with a scroll bar, there or not: a hint that changed with the bar would bring it in and out for ever.
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
    // Wrapped texts are taller in a narrower area.
    if (event->size().width() != event->oldSize().width() && widget() && widget()->hasHeightForWidth())
        updateGeometry();
}

bool PaneArea::eventFilter(QObject *object, QEvent *event)
{
    // Content that changes its size from within must move the area's neighbours, not only grow a scroll bar.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

} // namespace bv
