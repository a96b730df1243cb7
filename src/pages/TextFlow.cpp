// SPDX-License-Identifier: GPL-2.0-or-later
// Line ends, tabs, form feeds, and lines that are longer than the sheet is wide.
#include "pages/TextFlow.h"

namespace bv {

namespace {

constexpr int kTabColumns = 8;

} // namespace

QString TextFlow::readLine()
{
    QString line;
    line.reserve(m_columns);
    int column = 0;
    while (!atEnd()) {
        const QChar character = m_text[m_position];
        const bool pair = character.isHighSurrogate() && m_position + 1 < m_text.size();
        if (character == u'\n' || character == u'\r') {
            m_position += m_text.mid(m_position, 2) == u"\r\n" ? 2 : 1;
            break;
        }
        if (character == u'\f') {
            ++m_position;
            m_pageEnded = true;
            break;
        }
        if (character < u' ' && character != u'\t') {
            ++m_position;
            continue;
        }
        if (column >= m_columns)
            break; // goes on in the next line
        if (character == u'\t') {
            const int spaces = kTabColumns - column % kTabColumns;
            line.append(QString(spaces, u' '));
            column += spaces;
        } else {
            line.append(m_text.mid(m_position, pair ? 2 : 1));
            ++column;
        }
        m_position += pair ? 2 : 1;
    }
    return line;
}

} // namespace bv
