// SPDX-License-Identifier: GPL-2.0-or-later
// Shows the summary as a table of two columns with wrapped texts.
#include "widgets/SummaryView.h"

#include "platform/HostProtocol.h"

#include <QScrollBar>

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

SummaryView::SummaryView(QWidget *parent) : QTextEdit(parent)
{
    setObjectName(QStringLiteral("summaryView"));
    setReadOnly(true);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Summary"));
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustIgnored);
    document()->setDocumentMargin(6);
}

void SummaryView::showSummary(const PrintDictionary &summary)
{
    Items items = summaryItems(summary);
    if (items == m_items && !items.empty())
        return;
    m_items = std::move(items);
    if (m_items.empty()) {
        showNote(tr("There is nothing to sum up."));
        return;
    }
    QString html = QStringLiteral("<table cellspacing=\"0\" cellpadding=\"1\" width=\"100%\">");
    for (const auto &[name, value] : m_items) {
        const QString nameCell = QStringLiteral("<td width=\"52%\">%1</td>").arg(name.toHtmlEscaped());
        const QString valueCell = QStringLiteral("<td width=\"48%\"><b>%1</b></td>").arg(value.toHtmlEscaped());
        html += QStringLiteral("<tr>") + (isRightToLeft() ? valueCell + nameCell : nameCell + valueCell) +
                QStringLiteral("</tr>");
    }
    const int position = verticalScrollBar()->value();
    setHtml(html + QStringLiteral("</table>"));
    alignTexts();
    verticalScrollBar()->setValue(position);
}

void SummaryView::alignTexts()
{
    QTextBlockFormat direction;
    direction.setLayoutDirection(layoutDirection());
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(direction);
}

void SummaryView::showNote(const QString &note)
{
    m_items.clear();
    setPlainText(note);
}

} // namespace bv
