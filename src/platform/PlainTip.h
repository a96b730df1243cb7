// SPDX-License-Identifier: GPL-2.0-or-later
// Tool tips as plain text. Qt takes a tip that looks like markup for HTML and loads the images that it names, from any
// file of the user; tips show what print server, PPD, printer and file names say.
#pragma once

#include <QTextDocument>
#include <QWidget>

namespace bv {

// The tip that shows `text` letter by letter, for item models.
inline QString plainTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

// Every tool tip of a widget is set by this function (tools/lint).
inline void setPlainTip(QWidget *widget, const QString &text)
{
    widget->setToolTip(plainTip(text));
}

} // namespace bv
