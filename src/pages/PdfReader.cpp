// SPDX-License-Identifier: GPL-2.0-or-later
// Opens the document on its first layout and draws with Poppler's own rasterizer.
#include "pages/PdfReader.h"

namespace bv {

namespace {

constexpr double kPointsPerInch = 72;

} // namespace

PdfReader::PdfReader(int descriptor) : m_descriptor(descriptor)
{
    // Poppler would print each fault of the document.
    Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
}

PageVerdict PdfReader::layOut(const Sheet &)
{
    if (!m_document) {
        if (!m_file.open(m_descriptor, QIODevice::ReadOnly))
            return PageVerdict::Unreadable;
        m_document = Poppler::Document::load(&m_file);
        if (!m_document)
            return PageVerdict::Unreadable;
        for (const auto hint :
             {Poppler::Document::Antialiasing, Poppler::Document::TextAntialiasing, Poppler::Document::ThinLineShape})
            m_document->setRenderHint(hint);
        m_document->setRenderBackend(Poppler::Document::SplashBackend);
    }
    return m_document->isLocked() ? PageVerdict::Locked : PageVerdict::Done;
}

int64_t PdfReader::pageCount() const
{
    return m_document->numPages();
}

QSizeF PdfReader::pageSize(int page)
{
    const std::unique_ptr<Poppler::Page> found = m_document->page(page);
    return found ? found->pageSizeF() : QSizeF();
}

QImage PdfReader::render(int page, QSize pixels)
{
    const std::unique_ptr<Poppler::Page> found = m_document->page(page);
    const QSizeF size = found ? found->pageSizeF() : QSizeF();
    if (size.isEmpty())
        return {};
    QImage drawn =
        found->renderToImage(kPointsPerInch * pixels.width() / size.width(),
                             kPointsPerInch * pixels.height() / size.height(), 0, 0, pixels.width(), pixels.height());
    return drawn;
}

} // namespace bv
