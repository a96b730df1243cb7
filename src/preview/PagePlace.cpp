// SPDX-License-Identifier: GPL-2.0-or-later
// The rules of cups-filters 1.28, found by sending it pages of many sizes.
#include "preview/PagePlace.h"

namespace bv {

namespace {

// A page that is larger than the sheet by no more than this is not scaled.
constexpr double kTolerance = 1.02;

bool isWide(QSizeF size)
{
    return size.width() > size.height();
}

// A page is turned where its longer side is not the sheet's. Here the sheet is.
Sheet turnedLike(const Sheet &sheet, QSizeF page)
{
    if (isWide(page) == isWide(sheet.size))
        return sheet;
    const QMarginsF &borders = sheet.borders;
    return {sheet.size.transposed(), {borders.top(), borders.right(), borders.bottom(), borders.left()}};
}

QRectF centered(QSizeF size, const QRectF &room)
{
    QRectF place(QPointF(), size);
    place.moveCenter(room.center());
    return place;
}

bool isLarger(QSizeF upright, QSizeF sheet)
{
    const QSizeF room = (isWide(sheet) ? sheet.transposed() : sheet) * kTolerance;
    return upright.width() > room.width() || upright.height() > room.height();
}

} // namespace

PagePlace placePage(const Sheet &sheet, PageContent content, QSizeF page, QSizeF largest)
{
    if (page.isEmpty() || content == PageContent::Text)
        return {sheet.size, QRectF(QPointF(), sheet.size)};
    const Sheet turned = turnedLike(sheet, page);
    const QRectF whole(QPointF(), turned.size);
    // One large page scales all pages of its document, small ones too.
    if (content == PageContent::Pdf && !isLarger(largest, turned.size))
        return {turned.size, centered(page, whole)};
    const QRectF printable = whole.marginsRemoved(turned.borders);
    return {turned.size, centered(page.scaled(printable.size(), Qt::KeepAspectRatio), printable)};
}

} // namespace bv
