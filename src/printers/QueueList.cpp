// SPDX-License-Identifier: GPL-2.0-or-later
// Fills the pop-up of printers and the line beside it.
#include "printers/QueueList.h"

#include "platform/PlainTip.h"
#include "printers/PrinterIcon.h"
#include "printers/PrinterState.h"
#include "widgets/ElidedLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <algorithm>

namespace bv {

namespace {

constexpr int kNameRole = Qt::UserRole;

// The queues of `last` first, in its order; the others as they are.
std::vector<PrintQueue> lastOnesFirst(std::vector<PrintQueue> queues, const QStringList &last)
{
    const auto place = [&last](const PrintQueue &queue) {
        const qsizetype at = last.indexOf(queue.name);
        return at < 0 ? last.size() : at;
    };
    std::stable_sort(queues.begin(), queues.end(),
                     [&place](const PrintQueue &one, const PrintQueue &other) { return place(one) < place(other); });
    return queues;
}

} // namespace

QueueList::QueueList(QWidget *parent) : QWidget(parent), m_popUp(new PrinterMenu(this)), m_note(new ElidedLabel(this))
{
    m_popUp->setObjectName(QStringLiteral("printer"));
    m_popUp->setAccessibleName(tr("Printer"));
    m_popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_popUp->setMinimumContentsLength(26);
    m_note->setObjectName(QStringLiteral("printerNote"));
    auto *label = new QLabel(tr("P&rinter:"), this);
    label->setBuddy(m_popUp);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(m_popUp);
    row->addWidget(m_note, 1);
    connect(m_popUp, &QComboBox::currentIndexChanged, this, [this] {
        showNote();
        emit queueChosen(chosen());
    });
}

void QueueList::setQueues(const std::vector<PrintQueue> &queues, const QStringList &last)
{
    const QSignalBlocker quiet(m_popUp);
    const QString before = chosen();
    std::vector<PrintQueue> sorted = lastOnesFirst(queues, last);
    // Who looks at the open list keeps his place in it.
    const bool same = std::equal(sorted.begin(), sorted.end(), m_queues.begin(), m_queues.end(),
                                 [](const PrintQueue &one, const PrintQueue &other) { return one.name == other.name; });
    m_queues = std::move(sorted);
    if (!same)
        m_popUp->clear();
    for (int row = 0; row < int(m_queues.size()); ++row) {
        if (!same)
            m_popUp->addItem(QString(), m_queues[size_t(row)].name);
        showItem(row);
    }
    m_popUp->setCurrentIndex(m_popUp->findData(before, kNameRole));
    m_popUp->setPlaceholderText(tr("No printer"));
    m_popUp->setEnabled(!m_queues.empty());
    showNote();
}

void QueueList::showLooking()
{
    setQueues({});
    m_popUp->setPlaceholderText(tr("Looking for printers…"));
}

bool QueueList::choose(const QString &queue)
{
    const QSignalBlocker quiet(m_popUp);
    m_popUp->setCurrentIndex(m_popUp->findData(queue, kNameRole));
    showNote();
    return m_popUp->currentIndex() >= 0;
}

QString QueueList::chosen() const
{
    return m_popUp->currentData(kNameRole).toString();
}

void QueueList::mark(const QString &queue, Mark mark, const QString &reason)
{
    m_marks[queue] = {mark, reason};
    const int row = m_popUp->findData(queue, kNameRole);
    if (row >= 0)
        showItem(row);
}

// Puts what is known of a queue into its item.
void QueueList::showItem(int row)
{
    const PrintQueue &queue = m_queues[size_t(row)];
    const MarkOfQueue marked = m_marks.value(queue.name, {Mark::None, {}});
    const QString title = printerTitle(queue);
    const QString note = printerNote(queue);
    const QString text = marked.mark == Mark::WithoutPane ? tr("%1: no color options").arg(title) : title;
    const PrinterState state = stateOf(queue);
    m_popUp->setItemText(row, text);
    m_popUp->setItemIcon(
        row,
        printerIcon(marked.mark == Mark::Unusable && state == PrinterState::Ready ? PrinterState::Attention : state));
    m_popUp->setItemData(row, note, PrinterMenu::kNoteRole);
    m_popUp->setItemData(row, title + u'\n' + queue.location, PrinterMenu::kSearchRole);
    QStringList more = {note, marked.reason};
    more.removeAll(QString());
    // The note may be cut in the list.
    const QString all = more.join(u'\n');
    m_popUp->setItemData(row, all.isEmpty() ? QVariant() : plainTip(all), Qt::ToolTipRole);
    m_popUp->setItemData(row, all, Qt::AccessibleDescriptionRole);
}

void QueueList::showNote()
{
    const QString note = m_popUp->currentData(PrinterMenu::kNoteRole).toString();
    m_note->setText(note);
    setPlainTip(m_note, note);
    m_popUp->setAccessibleDescription(note);
}

} // namespace bv
