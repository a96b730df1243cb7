// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the picture's size from its header, and decodes it anew for each size that is wanted.
#include "pages/PictureReader.h"

#include <QPainter>

namespace bv {

namespace {

constexpr int kMostMegabytes = 512; // of a decoded picture

} // namespace

PictureReader::PictureReader(int descriptor) : m_descriptor(descriptor)
{
    // Loads the plug-ins.
    QImageReader::supportedImageFormats();
    QImageReader::setAllocationLimit(kMostMegabytes);
}

bool PictureReader::open()
{
    if (!m_file.isOpen() && !m_file.open(m_descriptor, QIODevice::ReadOnly))
        return false;
    m_file.seek(0);
    m_reader.setDevice(&m_file);
    m_reader.setDecideFormatFromContent(true);
    return m_reader.canRead();
}

PageVerdict PictureReader::layOut(const Sheet &)
{
    if (!m_size.isEmpty())
        return PageVerdict::Done;
    if (!open())
        return PageVerdict::Unreadable;
    m_size = m_reader.size();
    if (!m_size.isValid())
        m_size = m_reader.read().size();
    return m_size.isEmpty() ? PageVerdict::Unreadable : PageVerdict::Done;
}

QSizeF PictureReader::pageSize(int)
{
    return m_size;
}

QImage PictureReader::render(int, QSize pixels)
{
    if (!open())
        return {};
    // A plug-in that can do so decodes only what is needed for the smaller size.
    if (m_reader.supportsOption(QImageIOHandler::ScaledSize) && pixels.width() < m_size.width() &&
        pixels.height() < m_size.height())
        m_reader.setScaledSize(pixels);
    const QImage picture = m_reader.read();
    if (picture.isNull())
        return {};
    QImage drawn(pixels, QImage::Format_RGB32);
    if (drawn.isNull())
        return {};
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    painter.drawImage(QPoint(), picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return drawn;
}

} // namespace bv
