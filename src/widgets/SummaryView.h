// The live summary: what a panel says about its settings, item by item, in the panel's order.
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
    // Item names and values, as shown.
    using Items = std::vector<std::pair<QString, QString>>;

    explicit SummaryView(QWidget *parent = nullptr);

    // Shows a panel's summary. Items that are named twice in the order show twice, names without a value not at all;
    // without an order array the items come in the dictionary's own order. The scroll position stays.
    void showSummary(const PrintDictionary &summary);
    // Shows a sentence in place of items.
    void showNote(const QString &note);

    // What is shown now; empty while a note is.
    const Items &items() const { return m_items; }

private:
    // Texts run as the window does.
    void alignTexts();

    Items m_items;
};

// The items of a summary in the order in which they are to be shown.
SummaryView::Items summaryItems(const PrintDictionary &summary);

} // namespace bv
