// Does with a control what a user does with it, its action included. Each function answers with a sentence when it
// cannot be done, and then nothing was changed; an empty answer is success.
#pragma once

#include <QString>

class QFileDialog;
class QWidget;

namespace bv {

// Chooses an item, sets a check mark, replaces a text or shows a tab. The value is a number but for text fields.
QString setControl(QWidget *control, const QString &value);

// Sets the check mark of a table's cell.
QString setTableMark(QWidget *table, const QString &column, const QString &row, const QString &value);

// Types into a text field key by key.
QString typeIntoControl(QWidget *control, const QString &text);

// Selects a table row; -1 selects none. The table may decline, which is no failure.
QString selectTableRow(QWidget *table, const QString &row);

// Clicks a button. Comes back when a modal window that the button opens is closed.
QString pressControl(QWidget *control);

// Picks a file in an open file panel and closes it; "-" cancels the panel.
QString chooseFile(QFileDialog *panel, const QString &path);

} // namespace bv
