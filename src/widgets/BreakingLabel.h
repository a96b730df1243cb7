// SPDX-License-Identifier: GPL-2.0-or-later
// A label whose words break where they are too long, so that no text makes a window wider.
#pragma once

#include <QHash>
#include <QLabel>

namespace bv {

// Plain text, never markup. The context menu copies it.
class BreakingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit BreakingLabel(QWidget *parent = nullptr);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Lays the text out in lines of this width and returns its height. Draws it where there is a painter.
    qreal layOut(qreal width, QPainter *painter) const;
    // Layouts ask for sizes again and again, and those of long texts are slow to find.
    struct Measured
    {
        QString text;
        QFont font;
        QSize oneLine;           // with the paragraphs as they are
        QHash<int, int> heights; // by width
    };
    Measured &measured() const;

    mutable Measured m_measured;
};

} // namespace bv
