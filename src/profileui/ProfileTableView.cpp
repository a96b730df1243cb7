// SPDX-License-Identifier: GPL-2.0-or-later
// Keys, mouse and columns of the management window's table.
#include "profileui/ProfileTableView.h"

#include "profileui/IconedCell.h"
#include "profileui/ProfileTableModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSet>

#include <algorithm>
#include <memory>

namespace bv {

namespace {

constexpr int kIconColumnWidth = 28;
constexpr int kRowPadding = 2;
constexpr int kCellMargin = 6;
constexpr int kFewestRows = 4; // stay visible on the smallest screen

} // namespace

void GuardedSelectionModel::select(const QModelIndex &index, SelectionFlags command)
{
    if (!m_held)
        QItemSelectionModel::select(index, command);
}

void GuardedSelectionModel::select(const QItemSelection &selection, SelectionFlags command)
{
    if (!m_held)
        QItemSelectionModel::select(selection, command);
}

void GuardedSelectionModel::setCurrentIndex(const QModelIndex &index, SelectionFlags command)
{
    if (!m_held)
        QItemSelectionModel::setCurrentIndex(index, command);
}

void GuardedSelectionModel::clear()
{
    if (!m_held)
        QItemSelectionModel::clear();
}

void GuardedSelectionModel::clearCurrentIndex()
{
    if (!m_held)
        QItemSelectionModel::clearCurrentIndex();
}

ProfileTableView::ProfileTableView(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setItemDelegateForColumn(ProfileTableModel::kIcon, new IconedCell(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(kIconColumnWidth);
}

void ProfileTableView::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    const std::unique_ptr<QItemSelectionModel> replaced(selectionModel());
    setSelectionModel(new GuardedSelectionModel(model, this));
}

void ProfileTableView::setSelectionHeld(bool held)
{
    if (auto *selection = qobject_cast<GuardedSelectionModel *>(selectionModel()))
        selection->setHeld(held);
}

int ProfileTableView::selectedRow() const
{
    const QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ProfileTableView::deselectRow()
{
    if (selectionModel())
        selectionModel()->clear();
}

void ProfileTableView::fitColumns()
{
    const QFontMetrics metrics(model()->index(0, ProfileTableModel::kFileName).data(Qt::FontRole).value<QFont>());
    verticalHeader()->setDefaultSectionSize(metrics.height() + kRowPadding);
    // Measuring the texts is fast. Asking the delegate for the size of each of 500 rows takes longer than a frame.
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnWidth(column, std::max(horizontalHeader()->sectionSizeHint(column), widestText(column, metrics)));
    m_profileNameWidth = columnWidth(ProfileTableModel::kProfileName);
    setMinimumHeight(horizontalHeader()->sizeHint().height() + kFewestRows * verticalHeader()->defaultSectionSize());
    spreadProfileNames();
}

void ProfileTableView::spreadProfileNames()
{
    if (!model())
        return;
    const int others = horizontalHeader()->length() - columnWidth(ProfileTableModel::kProfileName);
    setColumnWidth(ProfileTableModel::kProfileName, std::max(m_profileNameWidth, viewport()->width() - others));
}

void ProfileTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    spreadProfileNames();
}

void ProfileTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = viewport()->rect().marginsRemoved({kCellMargin, kCellMargin, kCellMargin, kCellMargin});
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, m_emptyHint);
}

int ProfileTableView::widestText(int column, const QFontMetrics &metrics) const
{
    QSet<QString> measured; // locations and many profile names repeat in many rows
    int widest = 0;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QString text = model()->index(row, column).data().toString();
        const qsizetype before = measured.size();
        measured.insert(text);
        if (measured.size() > before)
            widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return widest + 2 * kCellMargin;
}

void ProfileTableView::keyboardSearch(const QString &search)
{
    if (search.isEmpty() || !model() || model()->rowCount() == 0)
        return;
    const bool goesOn = m_sinceTyped.isValid() && m_sinceTyped.elapsed() <= QApplication::keyboardInputInterval();
    m_sinceTyped.start();
    m_typed = goesOn ? m_typed + search : search;
    // Typing the same letter repeatedly walks through the rows that begin with it.
    const bool sameLetter = m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString wanted = sameLetter ? m_typed.left(1) : m_typed;
    int start = std::max(selectedRow(), 0);
    if (selectedRow() >= 0 && wanted.size() == 1)
        start = (start + 1) % model()->rowCount();
    const QModelIndexList found = model()->match(model()->index(start, ProfileTableModel::kFileName), Qt::DisplayRole,
                                                 wanted, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    if (!found.isEmpty())
        setCurrentIndex(found.first());
}

void ProfileTableView::toggleCheckMark()
{
    const int row = currentIndex().isValid() ? currentIndex().row() : selectedRow();
    if (row < 0)
        return;
    const QModelIndex mark = model()->index(row, ProfileTableModel::kInMenu);
    const bool checked = mark.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model()->setData(mark, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

int ProfileTableView::rowForKey(int key) const
{
    const int rows = model() ? model()->rowCount() : 0;
    if (key == Qt::Key_Home)
        return rows > 0 ? 0 : -1;
    if (key == Qt::Key_End)
        return rows - 1;
    // The current row is already the first one when the table gets the focus, so an arrow key would skip it.
    const bool arrow = key == Qt::Key_Down || key == Qt::Key_Up;
    return arrow && selectedRow() < 0 && rows > 0 ? 0 : -1;
}

void ProfileTableView::keyPressEvent(QKeyEvent *event)
{
    const bool plain = event->modifiers() == Qt::NoModifier;
    const int row = plain ? rowForKey(event->key()) : -1;
    // Space toggles the row's check mark, whatever the current column.
    if (plain && event->key() == Qt::Key_Space)
        toggleCheckMark();
    else if (row >= 0)
        selectRow(row);
    else
        QTableView::keyPressEvent(event);
}

void ProfileTableView::mousePressEvent(QMouseEvent *event)
{
    if (!indexAt(event->position().toPoint()).isValid() && event->button() == Qt::LeftButton)
        deselectRow();
    QTableView::mousePressEvent(event);
}

} // namespace bv
