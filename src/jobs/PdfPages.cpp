// SPDX-License-Identifier: GPL-2.0-or-later
// Asks bvpages.
#include "jobs/PdfPages.h"

#include "pages/PageCount.h"

#include <QFile>

namespace bv {

PageCount pdfPages()
{
    return [](const QString &path) { return pdfPageCount(QFile::encodeName(path).toStdString()); };
}

} // namespace bv
