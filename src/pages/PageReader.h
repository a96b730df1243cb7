// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the pages of one document. There is one reader for each kind of content.
#pragma once

#include "pages/PageProtocol.h"
#include "pages/Sheet.h"

#include <QImage>
#include <memory>

namespace bv {

class PageReader
{
public:
    virtual ~PageReader() = default;

    virtual PageContent content() const = 0;
    // Reads the document as far as needed to know its pages, which depend on the sheet where it has none of its own.
    // The calls below come after one that succeeded, with pages from 0 to pageCount() - 1.
    virtual PageVerdict layOut(const Sheet &sheet) = 0;
    virtual int64_t pageCount() const = 0;
    // In points; for a picture in pixels. Empty when the page is broken.
    virtual QSizeF pageSize(int page) = 0;
    // The whole page in exactly this many pixels, on white. Null when the page is broken.
    virtual QImage render(int page, QSize pixels) = 0;
};

// Makes the reader for the document on `descriptor`, which stays open as long as the reader lives. Loads all plug-ins
// and settings that the reader needs, but reads nothing of the document. Null for content that is not shown.
std::unique_ptr<PageReader> makeReader(PageContent content, int descriptor);

} // namespace bv
