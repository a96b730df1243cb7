// A scroll area that asks for as much room as what is in it, and follows it when it changes its size.
#pragma once

#include <QScrollArea>

namespace bv {

// Takes no keyboard focus itself, and moves along when the focus goes to a control that is out of sight.
class PaneArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaneArea(QWidget *parent = nullptr);
    QSize sizeHint() const override;
    // As wide as the content, up to what a small screen has room for; any height, since the content scrolls.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace bv
