// SPDX-License-Identifier: GPL-2.0-or-later
// Where the print server's filters put a page on the sheet.
#pragma once

#include "pages/PageProtocol.h"
#include "pages/Sheet.h"

#include <QRectF>

namespace bv {

// In points, upright for the reader: the sheet is turned with the page.
struct PagePlace
{
    QSizeF sheet;
    QRectF page; // may reach beyond the sheet

    bool operator==(const PagePlace &) const = default;
};

// The place of a page of this size in a document whose largest page has the size `largest` (shorter side first). An
// empty size gives the whole sheet.
PagePlace placePage(const Sheet &sheet, PageContent content, QSizeF page, QSizeF largest);

} // namespace bv
