// SPDX-License-Identifier: GPL-2.0-or-later
// A plain text file as a document, laid out as the print server's filter does: 10 characters an inch, 6 lines an inch.
#pragma once

#include "pages/PageReader.h"

#include <QFont>
#include <QString>
#include <vector>

namespace bv {

class TextReader final : public PageReader
{
public:
    // Needs a QGuiApplication for the font.
    explicit TextReader(int descriptor);

    PageContent content() const override { return PageContent::Text; }
    PageVerdict layOut(const Sheet &sheet) override;
    int64_t pageCount() const override { return static_cast<int64_t>(m_pages.size()); }
    QSizeF pageSize(int page) override;
    QImage render(int page, QSize pixels) override;

private:
    bool read();

    int m_descriptor;
    QFont m_font;
    bool m_read = false;
    QString m_text;
    Sheet m_sheet;
    std::vector<qsizetype> m_pages; // where each page begins in the text
};

} // namespace bv
