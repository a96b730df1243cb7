// SPDX-License-Identifier: GPL-2.0-or-later
// Sorts the summary into rows, and renews only what differs.
#include "widgets/SummaryView.h"

#include "platform/HostProtocol.h"
#include "platform/PlainTip.h"

#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

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

} // namespace

SummaryView::Items summaryItems(const PrintDictionary &summary)
{
    SummaryView::Items items;
    const auto add = [&](const QString &name) {
        if (std::optional<QString> text = displayText(summary.value(name)))
            items.emplace_back(name, std::move(*text));
    };
    const QString orderKey = QString::fromLatin1(kSummaryDisplayOrder);
    const PrintValue order = summary.value(orderKey);
    if (const PrintArray *names = order.array()) {
        for (const PrintValue &name : *names) {
            if (const QString *text = name.string())
                add(*text);
        }
        return items;
    }
    for (const auto &entry : summary.entries) {
        if (entry.first != orderKey)
            add(entry.first);
    }
    return items;
}

SummaryHints summaryHints(const QWidget *view)
{
    SummaryHints hints;
    if (!view)
        return hints;
    for (const QWidget *control : view->findChildren<QWidget *>()) {
        const QVariant name = control->property(kSummaryNameProperty);
        if (name.isValid())
            hints.insert(name.toString(), {control->property(kSummaryGroupProperty).toString(),
                                           control->property(kSummaryOffProperty).toString()});
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
    setUniformRowHeights(true);
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

void SummaryView::showSummary(const PrintDictionary &summary, const PrintDictionary &defaults,
                              const SummaryHints &hints)
{
    m_items = summaryItems(summary);
    if (m_items.empty()) {
        showNote(tr("There is nothing to sum up."));
        return;
    }
    const QString differs = tr("Changed");
    const QString rest = tr("Unchanged");
    QStringList headings = {differs};
    std::vector<Row> rows;
    for (const auto &[name, value] : m_items) {
        const std::optional<QString> usual = displayText(defaults.value(name));
        const SummaryHint hint = hints.value(name);
        const bool changed = usual && *usual != value;
        rows.push_back({changed ? differs : hint.group.isEmpty() ? rest : hint.group, name, value, hint.off, changed});
        if (!headings.contains(rows.back().heading))
            headings << rows.back().heading;
    }
    std::stable_sort(rows.begin(), rows.end(), [&headings](const Row &one, const Row &other) {
        return headings.indexOf(one.heading) < headings.indexOf(other.heading);
    });
    const bool same = hasSamePlaces(rows);
    m_rows = std::move(rows);
    if (same)
        renewTexts();
    else
        rebuild();
}

bool SummaryView::hasSamePlaces(const std::vector<Row> &rows) const
{
    return m_cells.size() == rows.size() &&
           std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(), [](const Row &one, const Row &other) {
               return one.heading == other.heading && one.name == other.name;
           });
}

QTreeWidgetItem *SummaryView::addHeading(const QString &text)
{
    auto *heading = new QTreeWidgetItem(this, {text});
    heading->setFirstColumnSpanned(true);
    heading->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return heading;
}

void SummaryView::rebuild()
{
    const int position = verticalScrollBar()->value();
    clear();
    m_cells.clear();
    if (!m_rows.front().changed)
        addHeading(tr("All as the printer proposes."));
    QTreeWidgetItem *heading = nullptr;
    for (const Row &row : m_rows) {
        if (!heading || heading->text(0) != row.heading) {
            heading = addHeading(row.heading);
            const QSignalBlocker quiet(this); // this is not the user's doing
            heading->setExpanded(m_unfolded.value(row.heading, row.changed));
        }
        m_cells.push_back(new QTreeWidgetItem(heading));
    }
    renewTexts();
    fitColumns();
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
            cell.setData(column, Qt::ForegroundRole, row.off.isEmpty() ? QVariant() : dimmed);
            cell.setToolTip(column, plainTip(spoken));
        }
        cell.setFont(1, strong);
        cell.setData(0, Qt::AccessibleTextRole, spoken);
    }
}

void SummaryView::fitColumns()
{
    // Long names leave the values two fifths; the tip has what does not fit.
    const int room = viewport()->width();
    setColumnWidth(0, std::min(sizeHintForColumn(0), room * 3 / 5));
}

void SummaryView::resizeEvent(QResizeEvent *event)
{
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

void SummaryView::showNote(const QString &note)
{
    m_items.clear();
    m_rows.clear();
    m_cells.clear();
    clear();
    if (!note.isEmpty())
        addHeading(note);
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
