// SPDX-License-Identifier: GPL-2.0-or-later
// A picture file (PNG, JPEG, TIFF, ...) as a document, by Qt's image plug-ins.
#pragma once

#include "pages/PageReader.h"

#include <QFile>
#include <QImageReader>

namespace bv {

class PictureReader final : public PageReader
{
public:
    explicit PictureReader(int descriptor);

    PageContent content() const override { return PageContent::Picture; }
    PageVerdict layOut(const Sheet &sheet) override;
    // The print server prints the first picture of a file, so the others do not count.
    int64_t pageCount() const override { return 1; }
    QSizeF pageSize(int page) override;
    QImage render(int page, QSize pixels) override;

private:
    // Goes back to the beginning of the file.
    bool open();

    int m_descriptor;
    QFile m_file;
    QImageReader m_reader;
    QSize m_size;
};

} // namespace bv
