// SPDX-License-Identifier: GPL-2.0-or-later
// Paints the sheet in the middle, as large as it fits.
#include "preview/SheetView.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

namespace bv {

namespace {

constexpr int kMargin = 6; // around the sheet, for its shadow and the focus frame
constexpr int kShadow = 2;
constexpr int kWaitingMilliseconds = 250;

enum class Turn { Forward, Back, First, Last };

struct KeyRow
{
    int key;
    Turn turn;
};

// clang-format off
constexpr KeyRow kKeys[] = {
    {Qt::Key_PageDown, Turn::Forward},
    {Qt::Key_Down,     Turn::Forward},
    {Qt::Key_Space,    Turn::Forward},
    {Qt::Key_PageUp,   Turn::Back},
    {Qt::Key_Up,       Turn::Back},
    {Qt::Key_Home,     Turn::First},
    {Qt::Key_End,      Turn::Last},
};
// clang-format on

// A picture, for screen readers: they pass over the name of a widget of no particular kind.
QAccessibleInterface *accessiblePicture(const QString &className, QObject *object)
{
    if (className != QLatin1String(SheetView::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Graphic);
}

} // namespace

SheetView::SheetView(QWidget *parent) : QWidget(parent)
{
    QAccessible::installFactory(accessiblePicture); // once, however often it is called
    setObjectName(QStringLiteral("previewSheet"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_patience.setSingleShot(true);
    m_patience.setInterval(kWaitingMilliseconds);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_waiting = true;
        update();
    });
}

QSize SheetView::room() const
{
    const QSize inside = size() - QSize(2 * kMargin, 2 * kMargin);
    return inside.isEmpty() ? QSize() : (QSizeF(inside) * devicePixelRatioF()).toSize();
}

void SheetView::showPage(const DrawnPage &page)
{
    m_patience.stop();
    m_waiting = false;
    m_page = page;
    m_heading.clear();
    m_text.clear();
    update();
}

void SheetView::showNote(const QString &heading, const QString &text, const QIcon &icon)
{
    m_patience.stop();
    m_waiting = false;
    m_page = {};
    m_heading = heading;
    m_text = text;
    m_icon = icon;
    update();
}

void SheetView::showWaiting()
{
    if (!m_waiting)
        m_patience.start();
}

QString SheetView::note() const
{
    return m_heading.isEmpty() || m_text.isEmpty() ? m_heading + m_text : m_heading + u'\n' + m_text;
}

QSize SheetView::sizeHint() const
{
    // Other parts of a window get what they need first; this one takes what is left.
    return minimumSizeHint();
}

QSize SheetView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 16, fontMetrics().height() * 4};
}

QRect SheetView::sheetRect() const
{
    const QRect inside = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRect sheet(QPoint(), m_page.place.sheet.scaled(inside.size(), Qt::KeepAspectRatio).toSize());
    sheet.moveCenter(inside.center());
    return sheet;
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_page.picture.isNull())
        paintNote(painter);
    else
        paintSheet(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(1, 1, -1, -1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void SheetView::paintSheet(QPainter &painter) const
{
    const QRect sheet = sheetRect();
    if (sheet.isEmpty())
        return;
    painter.fillRect(sheet.translated(kShadow, kShadow), palette().color(QPalette::Shadow));
    painter.fillRect(sheet, Qt::white);
    painter.save();
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    const double scale = sheet.width() / m_page.place.sheet.width();
    const QRectF page(m_page.place.page.topLeft() * scale, m_page.place.page.size() * scale);
    // A picture that was drawn for this size is not scaled at all.
    const double ratio = devicePixelRatioF();
    const QSizeF drawn = QSizeF(m_page.picture.size()) / ratio;
    const bool exact = std::abs(drawn.width() - page.width()) < 2 && std::abs(drawn.height() - page.height()) < 2;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !exact);
    const QPointF corner(std::round(page.left() * ratio) / ratio, std::round(page.top() * ratio) / ratio);
    painter.drawImage(exact ? QRectF(corner, drawn) : page, m_page.picture);
    painter.restore();
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
    if (!m_waiting)
        return;
    QColor veil(Qt::white);
    veil.setAlphaF(0.7F);
    painter.fillRect(sheet, veil);
    painter.setPen(Qt::black);
    painter.drawText(sheet, Qt::AlignCenter | Qt::TextWordWrap, tr("Drawing the page…"));
}

void SheetView::paintNote(QPainter &painter) const
{
    QRect room = rect().adjusted(2 * kMargin, kMargin, -2 * kMargin, -kMargin);
    painter.setPen(palette().color(QPalette::WindowText));
    if (m_waiting) {
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, tr("Drawing the page…"));
        return;
    }
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics boldMetrics(bold);
    constexpr int kFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int headingHeight = m_heading.isEmpty() ? 0 : boldMetrics.lineSpacing();
    const int textHeight = fontMetrics().boundingRect(room, kFlags, m_text).height();
    int iconSize = m_icon.isNull() ? 0 : style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this) + kMargin;
    if (iconSize + headingHeight + textHeight > room.height())
        iconSize = 0;
    room.setTop(std::max(room.top(), room.center().y() - (iconSize + headingHeight + textHeight) / 2));
    if (iconSize) {
        const int side = iconSize - kMargin;
        m_icon.paint(&painter, QRect(room.center().x() - side / 2, room.top(), side, side));
        room.setTop(room.top() + iconSize);
    }
    painter.setFont(bold);
    painter.drawText(room, kFlags, boldMetrics.elidedText(m_heading, Qt::ElideMiddle, room.width()));
    painter.setFont(font());
    room.setTop(room.top() + headingHeight);
    painter.drawText(room, kFlags, m_text);
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    for (const KeyRow &row : kKeys) {
        if (event->key() != row.key || (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
            continue;
        switch (row.turn) {
        case Turn::Forward:
            emit turned(1);
            return;
        case Turn::Back:
            emit turned(-1);
            return;
        case Turn::First:
            emit wentToFirst();
            return;
        case Turn::Last:
            emit wentToLast();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    m_wheel += event->angleDelta().y();
    const int pages = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel -= pages * QWheelEvent::DefaultDeltasPerStep;
    if (pages != 0)
        emit turned(-pages);
    event->accept();
}

void SheetView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit resized();
}

void SheetView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void SheetView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace bv
