// SPDX-License-Identifier: GPL-2.0-or-later
// Lays out the text by itself, since QLabel breaks at spaces only.
#include "widgets/BreakingLabel.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <cmath>

namespace bv {

namespace {

// In average characters.
constexpr int kUsualWidth = 50;
constexpr int kLeastWidth = 12;

} // namespace

BreakingLabel::BreakingLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    auto *copy = new QAction(tr("Copy"), this);
    connect(copy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(text()); });
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

qreal BreakingLabel::layOut(qreal width, QPainter *painter) const
{
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment()));
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    qreal height = 0;
    std::vector<std::unique_ptr<QTextLayout>> paragraphs;
    for (const QString &paragraph : text().split(u'\n')) {
        auto layout = std::make_unique<QTextLayout>(paragraph, font());
        layout->setTextOption(option);
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, height});
            height += line.height();
        }
        layout->endLayout();
        paragraphs.push_back(std::move(layout));
    }
    if (!painter)
        return height;
    const QRect room = contentsRect();
    const bool isAtTop = (alignment() & Qt::AlignTop) != 0;
    const qreal above = isAtTop ? 0 : std::max(0.0, (room.height() - height) / 2);
    for (const auto &layout : paragraphs)
        layout->draw(painter, QPointF(room.left(), room.top() + above));
    return height;
}

BreakingLabel::Measured &BreakingLabel::measured() const
{
    if (m_measured.oneLine.isNull() || m_measured.text != text() || m_measured.font != font())
        m_measured = {text(), font(), fontMetrics().size(0, text()) + QSize(1, 1), {}};
    return m_measured;
}

int BreakingLabel::heightForWidth(int width) const
{
    int &height = measured().heights[width];
    if (height == 0) {
        const QMargins margins = contentsMargins();
        const int room = width - margins.left() - margins.right();
        height = int(std::ceil(layOut(std::max(1, room), nullptr))) + margins.top() + margins.bottom();
    }
    return height;
}

QSize BreakingLabel::sizeHint() const
{
    const int widest = fontMetrics().averageCharWidth() * kUsualWidth;
    const int width = std::min(widest, measured().oneLine.width());
    return {width, heightForWidth(std::max(width, minimumSizeHint().width()))};
}

QSize BreakingLabel::minimumSizeHint() const
{
    return {std::min(measured().oneLine.width(), fontMetrics().averageCharWidth() * kLeastWidth),
            fontMetrics().height()};
}

void BreakingLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layOut(contentsRect().width(), &painter);
}

} // namespace bv
