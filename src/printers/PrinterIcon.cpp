// SPDX-License-Identifier: GPL-2.0-or-later
// Draws the pictures.
#include "printers/PrinterIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <map>

namespace bv {

namespace {

constexpr int kEdge = 16; // points, for which the coordinates below are meant
constexpr int kScale = 4; // for the largest screens
const QColor kBody(0x80, 0x80, 0x80);
const QColor kSheet(0xf4, 0xf4, 0xf4);

void drawPrinter(QPainter &painter)
{
    painter.setPen(QPen(kBody.darker(130), 0.7));
    painter.setBrush(kSheet);
    painter.drawRect(QRectF(4, 1, 8, 5));
    painter.setBrush(kBody);
    painter.drawRoundedRect(QRectF(1, 5, 14, 7), 1.5, 1.5);
    painter.setBrush(kSheet);
    painter.drawRect(QRectF(4, 9, 8, 5.5));
}

// A disc in the lower right corner.
void drawGround(QPainter &painter, const QColor &color)
{
    painter.setPen(QPen(Qt::white, 0.8));
    painter.setBrush(color);
    painter.drawEllipse(QRectF(7.5, 7.5, 8, 8));
    painter.setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap));
}

void drawMark(QPainter &painter, PrinterState state)
{
    switch (state) {
    case PrinterState::Ready:
        break;
    case PrinterState::Attention:
        drawGround(painter, QColor(0xb4, 0x60, 0x00));
        painter.drawLine(QPointF(11.5, 9.5), QPointF(11.5, 11.8));
        painter.drawPoint(QPointF(11.5, 13.8));
        break;
    case PrinterState::Stopped:
        drawGround(painter, QColor(0x3a, 0x5f, 0x9e));
        painter.drawLine(QPointF(10.4, 10), QPointF(10.4, 13));
        painter.drawLine(QPointF(12.6, 10), QPointF(12.6, 13));
        break;
    case PrinterState::Closed:
        drawGround(painter, QColor(0xb0, 0x20, 0x20));
        painter.drawLine(QPointF(10, 10), QPointF(13, 13));
        painter.drawLine(QPointF(10, 13), QPointF(13, 10));
        break;
    }
}

} // namespace

QIcon printerIcon(PrinterState state)
{
    static std::map<PrinterState, QIcon> drawn;
    const auto known = drawn.find(state);
    if (known != drawn.end())
        return known->second;
    QPixmap picture(QSize(kEdge, kEdge) * kScale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kScale, kScale);
    drawPrinter(painter);
    drawMark(painter, state);
    painter.end();
    return drawn.emplace(state, picture).first->second;
}

} // namespace bv
