// SPDX-License-Identifier: GPL-2.0-or-later
// The management window's table: selection of one row, search by typing, check marks by mouse and space bar.
#pragma once

#include "platform/ClassNames.h"

#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QTableView>

namespace bv {

// A selection that can be locked. While it is held, neither mouse, keys nor code can change it.
class GuardedSelectionModel : public QItemSelectionModel
{
    Q_OBJECT

public:
    using QItemSelectionModel::QItemSelectionModel;

    void setHeld(bool held) { m_held = held; }

    void select(const QModelIndex &index, SelectionFlags command) override;
    void select(const QItemSelection &selection, SelectionFlags command) override;
    void setCurrentIndex(const QModelIndex &index, SelectionFlags command) override;
    void clear() override;
    void clearCurrentIndex() override;

private:
    bool m_held = false;
};

// Shows a ProfileTableModel.
class ProfileTableView : public QTableView
{
    Q_OBJECT

public:
    explicit ProfileTableView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    // Locks or unlocks the selection.
    void setSelectionHeld(bool held);
    // The selected row, or -1.
    int selectedRow() const;
    // Clears the selection and the current row.
    void deselectRow();
    // Fits the column widths to the texts of the rows. The profile names get the spare width.
    void fitColumns();
    // What stands in the place of the rows while there are none.
    void setEmptyHint(const QString &hint) { m_emptyHint = hint; }

    // Selects the next row, starting at the current one, whose file name begins with the typed text.
    void keyboardSearch(const QString &search) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void spreadProfileNames();
    int widestText(int column, const QFontMetrics &metrics) const;
    void toggleCheckMark();
    // The row that a key moves to where this table differs from Qt's; -1 where Qt's own handling applies.
    int rowForKey(int key) const;

    QString m_emptyHint;
    int m_profileNameWidth = 0; // what the texts need
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace bv
