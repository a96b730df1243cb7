// SPDX-License-Identifier: GPL-2.0-or-later
// Operates a control as a user would, and triggers its action. Each function returns an empty string on success.
// Otherwise it returns a sentence, and nothing was changed.
#pragma once

#include <QString>

class QFileDialog;
class QWidget;

namespace bv {

// Chooses an item, sets a check mark, replaces a text or shows a tab. The value is a number, except for text fields.
QString setControl(QWidget *control, const QString &value);

// Sets the check mark of a table's cell.
QString setTableMark(QWidget *table, const QString &column, const QString &row, const QString &value);

// Types into a text field key by key.
QString typeIntoControl(QWidget *control, const QString &text);

// Selects a table row; -1 selects none. It is not a failure if the table declines.
QString selectTableRow(QWidget *table, const QString &row);

// Clicks a button. If the button opens a modal window, returns after that window is closed.
QString pressControl(QWidget *control);

// Picks a file in an open file panel and closes it; "-" cancels the panel.
QString chooseFile(QFileDialog *panel, const QString &path);

} // namespace bv
