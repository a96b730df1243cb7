// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the text, finds where its pages begin, and draws them.
#include "pages/TextReader.h"

#include "pages/TextFlow.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringDecoder>
#include <algorithm>

namespace bv {

namespace {

constexpr double kColumnPoints = 7.2;
constexpr double kRowPoints = 12;
constexpr double kFontPixels = 12;
constexpr double kMostStretch = 2;   // of a picture against its page; Qt also fails at letters that are stretched far
constexpr double kLeastPixels = 0.5; // of a letter's place; what is smaller cannot be seen, and Qt fails at some of it
constexpr qint64 kMostBytes = qint64{32} << 20;

int fitting(double room, double each)
{
    return std::max(1, static_cast<int>(room / each));
}

int columnsOf(const Sheet &sheet)
{
    return fitting(sheet.size.width() - sheet.borders.left() - sheet.borders.right(), kColumnPoints);
}

int rowsOf(const Sheet &sheet)
{
    return fitting(sheet.size.height() - sheet.borders.top() - sheet.borders.bottom(), kRowPoints);
}

QString decoded(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

} // namespace

TextReader::TextReader(int descriptor) : m_descriptor(descriptor), m_font(QStringLiteral("monospace"))
{
    m_font.setStyleHint(QFont::Monospace);
    m_font.setFixedPitch(true);
    m_font.setPixelSize(static_cast<int>(kFontPixels));
    m_font.setHintingPreference(QFont::PreferNoHinting);
    // Any font is stretched to the printer's columns.
    const double advance = QFontMetricsF(m_font).horizontalAdvance(u'M');
    m_font.setLetterSpacing(QFont::AbsoluteSpacing, kColumnPoints - advance);
}

bool TextReader::read()
{
    QFile file;
    if (!file.open(m_descriptor, QIODevice::ReadOnly) || file.size() > kMostBytes)
        return false;
    // Qt takes memory for all that it is asked to read.
    m_text = decoded(file.read(file.size()));
    m_read = true;
    return true;
}

PageVerdict TextReader::layOut(const Sheet &sheet)
{
    if (!m_read && !read())
        return PageVerdict::Unreadable;
    m_sheet = sheet;
    m_pages.clear();
    TextFlow flow(m_text, columnsOf(sheet), rowsOf(sheet));
    do {
        m_pages.push_back(flow.position());
        flow.readPage([](int, const QString &) {});
    } while (!flow.atEnd() && m_pages.size() < kMostPages);
    return PageVerdict::Done;
}

QSizeF TextReader::pageSize(int)
{
    return m_sheet.size;
}

QImage TextReader::render(int page, QSize pixels)
{
    QImage drawn(pixels, QImage::Format_RGB32);
    if (drawn.isNull())
        return {};
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    const double across = pixels.width() / m_sheet.size.width();
    const double down = pixels.height() / m_sheet.size.height();
    const bool isStretched = across > kMostStretch * down || down > kMostStretch * across;
    if (isStretched || across * kColumnPoints < kLeastPixels || down * kRowPoints < kLeastPixels)
        return drawn;
    painter.scale(across, down);
    painter.setFont(m_font);
    painter.setPen(Qt::black);
    const double ascent = QFontMetricsF(m_font).ascent();
    TextFlow flow(m_text, columnsOf(m_sheet), rowsOf(m_sheet), m_pages[static_cast<size_t>(page)]);
    flow.readPage([&](int row, const QString &line) {
        painter.drawText(QPointF(m_sheet.borders.left(), m_sheet.borders.top() + row * kRowPoints + ascent), line);
    });
    return drawn;
}

} // namespace bv
