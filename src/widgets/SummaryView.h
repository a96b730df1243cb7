// SPDX-License-Identifier: GPL-2.0-or-later
// Shows the panel's summary as rows of name and value: first what differs from the printer's defaults, then the rest in
// groups that can be folded.
#pragma once

#include "platform/PrintValue.h"

#include <QHash>
#include <QStringList>
#include <QTreeWidget>
#include <utility>
#include <vector>

namespace bv {

// What a panel's controls say of the items of its summary, by the item's name.
struct SummaryHint
{
    QString group; // title of the group that the item belongs to; may be empty
    QString off;   // why the item has no effect just now; empty when it has one
};
using SummaryHints = QHash<QString, SummaryHint>;

// The hints that the controls below a panel's view carry (kSummaryNameProperty and the others of the host protocol).
// Empty for a panel that has none.
SummaryHints summaryHints(const QWidget *view);

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    // Names and values as shown.
    using Items = std::vector<std::pair<QString, QString>>;

    explicit SummaryView(QWidget *parent = nullptr);

    // Shows a panel's summary. The order array decides: an item named twice is shown twice, a name without a value is
    // skipped. Without an order array the items are shown in dictionary order. `defaults` is the summary of a panel
    // whose settings were never changed; without one nothing differs. Keeps what is folded and the scroll position.
    void showSummary(const PrintDictionary &summary, const PrintDictionary &defaults = {},
                     const SummaryHints &hints = {});
    // Shows a sentence instead of items.
    void showNote(const QString &note);

    // The items shown now, in the panel's order. Empty while a note is shown.
    const Items &items() const { return m_items; }
    // The texts of all rows from top to bottom, "name: value" or a heading alone.
    QStringList lines() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Row
    {
        QString heading;
        QString name;
        QString value;
        QString off;
        bool changed = false;
    };
    // Whether the rows stand below the same headings, so that only texts need to be renewed.
    bool hasSamePlaces(const std::vector<Row> &rows) const;
    void rebuild();
    void renewTexts();
    QTreeWidgetItem *addHeading(const QString &text);
    void fitColumns();

    Items m_items;
    std::vector<Row> m_rows;                // in the order shown
    std::vector<QTreeWidgetItem *> m_cells; // one for each row
    QHash<QString, bool> m_unfolded;        // by heading, once the user has folded or unfolded it
};

// The items of a summary in display order.
SummaryView::Items summaryItems(const PrintDictionary &summary);

} // namespace bv
