// SPDX-License-Identifier: GPL-2.0-or-later
// A scroll area that is as large as its content where there is room, and follows the content's size.
#pragma once

#include <QScrollArea>

namespace bv {

// Takes no keyboard focus itself. Scrolls to a control that gets the focus by the keyboard or by a call.
class PaneArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaneArea(QWidget *parent = nullptr);
    QSize sizeHint() const override;
    // As wide as the content, but not wider than a small screen allows. Small in height, since the content scrolls.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace bv
