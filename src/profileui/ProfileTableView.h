// The management window's table as the user handles it: one row at a time, type-ahead, check marks by mouse and space.
#pragma once

#include "platform/ClassNames.h"

#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QTableView>

namespace bv {

// A selection that can be held fast: while it is, no way of selecting (mouse, keys, code) changes it.
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
    // While held, the selection stays as it is.
    void setSelectionHeld(bool held);
    // The selected row, or -1.
    int selectedRow() const;
    // No selected and no current row.
    void deselectRow();
    // Makes the columns as wide as the texts of the rows ask for.
    void fitColumns();

    // Selects the first row from the current one on whose file name begins with what was typed.
    void keyboardSearch(const QString &search) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    int widestText(int column, const QFontMetrics &metrics) const;
    void toggleCheckMark();
    // The row that a key goes to where the table's own keys would go elsewhere, or -1.
    int rowForKey(int key) const;

    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace bv
