// SPDX-License-Identifier: GPL-2.0-or-later
// Breaks a text into the lines and pages of a line printer.
#pragma once

#include <QString>
#include <QStringView>

namespace bv {

// Walks through a text line by line.
class TextFlow
{
public:
    // `columns` and `rows` are at least 1. The text must outlive the flow. Starts at a position where a page begins.
    TextFlow(QStringView text, int columns, int rows, qsizetype position = 0)
        : m_text(text), m_columns(columns), m_rows(rows), m_position(position)
    {}

    // True when the whole text was read.
    bool atEnd() const { return m_position >= m_text.size(); }
    qsizetype position() const { return m_position; }
    // Reads the next page. Calls `line` with the number of each line on it and its text, tabs spread; control
    // characters are left out.
    template <typename Line> void readPage(Line line)
    {
        m_pageEnded = false;
        for (int row = 0; row < m_rows && !m_pageEnded && !atEnd(); ++row)
            line(row, readLine());
    }

private:
    QString readLine();

    QStringView m_text;
    int m_columns;
    int m_rows;
    qsizetype m_position;
    bool m_pageEnded = false; // by a form feed
};

} // namespace bv
