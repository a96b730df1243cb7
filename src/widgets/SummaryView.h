// SPDX-License-Identifier: GPL-2.0-or-later
// Shows the panel's summary of its settings, in the panel's order.
#pragma once

#include "platform/PrintValue.h"

#include <QTextEdit>
#include <QStringList>
#include <utility>
#include <vector>

namespace bv {

class SummaryView : public QTextEdit
{
    Q_OBJECT

public:
    // Names and values as shown.
    using Items = std::vector<std::pair<QString, QString>>;

    explicit SummaryView(QWidget *parent = nullptr);

    // Shows a panel's summary. The order array decides: an item named twice is shown twice, a name without a value is
    // skipped. Without an order array the items are shown in dictionary order. Keeps the scroll position.
    void showSummary(const PrintDictionary &summary);
    // Shows a sentence instead of items.
    void showNote(const QString &note);

    // The items shown now. Empty while a note is shown.
    const Items &items() const { return m_items; }

private:
    // Aligns the texts to the window's layout direction.
    void alignTexts();

    Items m_items;
};

// The items of a summary in display order.
SummaryView::Items summaryItems(const PrintDictionary &summary);

} // namespace bv
