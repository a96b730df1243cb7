// SPDX-License-Identifier: GPL-2.0-or-later
// Pages of a PDF document, by Poppler.
#pragma once

#include "pages/PageReader.h"

#include <QFile>
#include <poppler-qt6.h>

namespace bv {

class PdfReader final : public PageReader
{
public:
    explicit PdfReader(int descriptor);

    PageContent content() const override { return PageContent::Pdf; }
    PageVerdict layOut(const Sheet &sheet) override;
    int64_t pageCount() const override;
    QSizeF pageSize(int page) override;
    QImage render(int page, QSize pixels) override;

private:
    int m_descriptor;
    QFile m_file; // outlives the document, which reads from it
    std::unique_ptr<Poppler::Document> m_document;
};

} // namespace bv
