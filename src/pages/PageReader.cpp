// SPDX-License-Identifier: GPL-2.0-or-later
// Which reader reads what.
#include "pages/PageReader.h"

#include "pages/PdfReader.h"
#include "pages/PictureReader.h"
#include "pages/TextReader.h"

namespace bv {

std::unique_ptr<PageReader> makeReader(PageContent content, int descriptor)
{
    switch (content) {
    case PageContent::Pdf:
        return std::make_unique<PdfReader>(descriptor);
    case PageContent::Picture:
        return std::make_unique<PictureReader>(descriptor);
    case PageContent::Text:
        return std::make_unique<TextReader>(descriptor);
    case PageContent::Unknown:
        break;
    }
    return nullptr;
}

} // namespace bv
