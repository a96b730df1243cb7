// SPDX-License-Identifier: GPL-2.0-or-later
// Sorts the summary into rows, and renews only what differs.
#include "widgets/SummaryView.h"

#include "platform/HostProtocol.h"
#include "platform/PlainTip.h"
#include "widgets/MarkedControls.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <utility>

namespace bv {

namespace {

// Text for a summary value. Nothing for values without a plain text (arrays, dictionaries, no value).
std::optional<QString> displayText(const PrintValue &value)
{
    if (const QString *text = value.string())
        return *text;
    if (const int64_t *number = value.integer())
        return QString::number(*number);
    if (const double *number = value.real())
        return QString::number(*number);
    if (const bool *flag = value.boolean())
        return *flag ? SummaryView::tr("Yes") : SummaryView::tr("No");
    return std::nullopt;
}

// Room around a text in a cell, as styles have it.
int cellMargins(const QWidget &view)
{
    return 2 * (view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1);
}

// Makes a row as tall as its texts are when they are broken into lines. A tree by itself measures them as one line.
class BreakingDelegate final : public QStyledItemDelegate
{
public:
    explicit BreakingDelegate(const QTreeWidget &view, QObject *parent) : QStyledItemDelegate(parent), m_view(view) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool isHeading = !index.parent().isValid();
        int width = isHeading ? m_view.viewport()->width() : m_view.columnWidth(index.column());
        if (index.column() == 0)
            width -= m_view.indentation() * (isHeading ? 1 : 2);
        QStyleOptionViewItem broken(option);
        broken.rect = QRect(0, 0, std::max(width, 1), 1);
        constexpr QSize kApart(0, 2); // so that lines of one row are closer than rows
        return QStyledItemDelegate::sizeHint(broken, index) + kApart;
    }

private:
    const QTreeWidget &m_view;
};

} // namespace

std::vector<SummaryEntry> summaryEntries(const PrintDictionary &summary, const PrintDictionary &defaults,
                                         const SummaryHints &hints)
{
    std::vector<SummaryEntry> entries;
    QHash<QString, bool> known;
    const auto add = [&](const QString &name) {
        std::optional<QString> text = displayText(summary.value(name));
        if (text && !std::exchange(known[name], true))
            entries.push_back({name, std::move(*text), displayText(defaults.value(name)), hints.value(name)});
    };
    const QString orderKey = QString::fromLatin1(kSummaryDisplayOrder);
    const PrintValue order = summary.value(orderKey);
    if (const PrintArray *names = order.array()) {
        for (const PrintValue &name : *names) {
            if (const QString *text = name.string())
                add(*text);
        }
        return entries;
    }
    for (const auto &entry : summary.entries) {
        if (entry.first != orderKey)
            add(entry.first);
    }
    return entries;
}

SummaryHints summaryHints(const QWidget *view)
{
    SummaryHints hints;
    for (const QWidget *control : markedControls(view)) {
        const QVariant name = control->property(kSummaryNameProperty);
        if (name.isValid())
            hints.insert(name.toString(), {control->property(kSummaryGroupProperty).toString(),
                                           control->property(kSummaryOffProperty).toString(),
                                           control->property(kOptionProperty).toString()});
    }
    return hints;
}

SummaryView::SummaryView(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("summaryView"));
    setAccessibleName(tr("Summary"));
    setColumnCount(2);
    setHeaderLabels({tr("Setting"), tr("Choice")});
    setHeaderHidden(true);
    header()->setStretchLastSection(true);
    setWordWrap(true);
    setItemDelegate(new BreakingDelegate(*this, this));
    setIndentation(fontMetrics().averageCharWidth() * 2);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](const QTreeWidgetItem *item) { m_unfolded[item->text(0)] = true; });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](const QTreeWidgetItem *item) { m_unfolded[item->text(0)] = false; });
}

void SummaryView::showEntries(const std::vector<SummaryEntry> &entries)
{
    if (entries.empty()) {
        showNote(tr("There is nothing to sum up."));
        return;
    }
    const QString differs = tr("Changed");
    const QString rest = tr("Unchanged");
    QStringList headings = {differs};
    std::vector<Row> rows;
    for (const SummaryEntry &entry : entries) {
        const bool changed = entry.usual && *entry.usual != entry.value;
        const QString &group = entry.hint.group;
        rows.push_back({changed           ? differs
                        : group.isEmpty() ? rest
                                          : group,
                        entry.name, entry.value, entry.hint.off, changed});
        if (!headings.contains(rows.back().heading))
            headings << rows.back().heading;
    }
    std::stable_sort(rows.begin(), rows.end(), [&headings](const Row &one, const Row &other) {
        return headings.indexOf(one.heading) < headings.indexOf(other.heading);
    });
    m_rows = std::move(rows);
    placeRows();
    renewTexts();
    fitColumns();
}

QTreeWidgetItem *SummaryView::placeHeading(int place, const QString &text, bool isUnfolded)
{
    int found = place;
    // The first heading says what is changed, or that nothing is: it only changes its words, since each new one has the
    // whole list laid out.
    while (place > 0 && found < topLevelItemCount() && topLevelItem(found)->text(0) != text)
        ++found;
    QTreeWidgetItem *heading = found < topLevelItemCount() ? topLevelItem(found) : nullptr;
    if (heading && found == place) {
        heading->setText(0, text);
    } else {
        heading = heading ? takeTopLevelItem(found) : new QTreeWidgetItem({text});
        heading->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        insertTopLevelItem(place, heading);
        heading->setFirstColumnSpanned(true);
    }
    const QSignalBlocker quiet(this); // this is not the user's doing
    if (heading->isExpanded() != isUnfolded)
        heading->setExpanded(isUnfolded);
    return heading;
}

void SummaryView::placeRows()
{
    const int position = verticalScrollBar()->value();
    // Items that are there already are moved at most, since a new one costs several times as much.
    QHash<QString, QList<QTreeWidgetItem *>> before;
    for (QTreeWidgetItem *cell : std::exchange(m_cells, {}))
        before[cell->text(0)] << cell;
    int headings = 0;
    if (!m_rows.front().changed)
        placeHeading(headings++, tr("All as the printer proposes."), false);
    QTreeWidgetItem *heading = nullptr;
    int place = 0;
    for (const Row &row : m_rows) {
        if (!heading || heading->text(0) != row.heading) {
            heading = placeHeading(headings++, row.heading, m_unfolded.value(row.heading, row.changed));
            place = 0;
        }
        QList<QTreeWidgetItem *> &known = before[row.name];
        QTreeWidgetItem *cell = known.isEmpty() ? new QTreeWidgetItem : known.takeFirst();
        if (heading->child(place) != cell) {
            if (cell->parent())
                cell->parent()->removeChild(cell);
            heading->insertChild(place, cell);
        }
        ++place;
        m_cells.push_back(cell);
    }
    for (const QList<QTreeWidgetItem *> &left : std::as_const(before))
        qDeleteAll(left);
    while (topLevelItemCount() > headings)
        delete topLevelItem(headings);
    verticalScrollBar()->setValue(position);
}

void SummaryView::renewTexts()
{
    const QBrush dimmed = palette().brush(QPalette::Disabled, QPalette::Text);
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows[i];
        QTreeWidgetItem &cell = *m_cells[i];
        const QString spoken =
            row.name + QStringLiteral(": ") + row.value + (row.off.isEmpty() ? QString() : u'\n' + row.off);
        if (cell.data(0, Qt::AccessibleTextRole).toString() == spoken)
            continue;
        QFont strong = font();
        strong.setBold(row.changed);
        for (const int column : {0, 1}) {
            cell.setText(column, column == 0 ? row.name : row.value);
            cell.setTextAlignment(column, Qt::AlignTop | Qt::AlignLeading);
            cell.setData(column, Qt::ForegroundRole, row.off.isEmpty() ? QVariant() : dimmed);
            cell.setToolTip(column, plainTip(spoken));
        }
        cell.setFont(1, strong);
        cell.setData(0, Qt::AccessibleTextRole, spoken);
    }
}

int SummaryView::widthOf(const QString &text, bool isStrong, bool words)
{
    QHash<QString, int> &known = m_widths[words ? 1 : 0][isStrong ? 1 : 0];
    if (const auto width = known.constFind(text); width != known.constEnd())
        return *width;
    QFont shown = font();
    shown.setBold(isStrong);
    const QFontMetrics metrics(shown);
    int widest = 0;
    // Chinese and Japanese lines break between characters.
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = words ? breaks.toNextBoundary() : text.size();
        widest = std::max(widest, metrics.horizontalAdvance(text.mid(start, end - start).trimmed()));
        start = end;
    }
    known.insert(text, widest);
    return widest;
}

int SummaryView::widestIn(int column, bool words)
{
    int widest = 0;
    for (const Row &row : m_rows)
        widest = std::max(widest, widthOf(column == 0 ? row.name : row.value, column == 1 && row.changed, words));
    // A character more, since styles round in their own ways.
    return widest + cellMargins(*this) + fontMetrics().averageCharWidth() + (column == 0 ? 2 * indentation() : 0);
}

void SummaryView::fitColumns()
{
    const int room = viewport()->width();
    const int names = widestIn(0, false);
    int width = names;
    if (names + widestIn(1, false) > room) {
        // Values are read first: they stay in one line while the names keep two fifths, and no word of either column is
        // cut as long as both find a place.
        width = std::clamp(room - widestIn(1, false), room * 2 / 5, room * 3 / 5);
        width = std::min({width, names, room - widestIn(1, true)});
        width = std::max(width, std::min(widestIn(0, true), room * 4 / 5));
    }
    setColumnWidth(0, width);
    scheduleDelayedItemsLayout(); // rows may be taller now, or less tall
}

void SummaryView::resizeEvent(QResizeEvent *event)
{
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

void SummaryView::changeEvent(QEvent *event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_widths = {};
        fitColumns();
    }
}

void SummaryView::showNote(const QString &note)
{
    m_rows.clear();
    m_cells.clear();
    clear();
    if (!note.isEmpty())
        placeHeading(0, note, false);
}

QStringList SummaryView::lines() const
{
    QStringList lines;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem *heading = topLevelItem(i);
        lines << heading->text(0);
        for (int row = 0; row < heading->childCount(); ++row)
            lines << heading->child(row)->text(0) + QStringLiteral(": ") + heading->child(row)->text(1);
    }
    return lines;
}

} // namespace bv
