// SPDX-License-Identifier: GPL-2.0-or-later
// Fills the pop-up of printers and the line beside it.
#include "dialog/QueueList.h"

#include "platform/PlainTip.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace bv {

namespace {

constexpr int kNameRole = Qt::UserRole;
constexpr int kNoteRole = Qt::UserRole + 1;

QString itemText(const PrintQueue &queue)
{
    return queue.description.isEmpty() || queue.description == queue.name
               ? queue.name
               : QueueList::tr("%1 (%2)", "description and name of a printer").arg(queue.description, queue.name);
}

// Location and state of the printer.
QString noteText(const PrintQueue &queue)
{
    QStringList parts;
    if (!queue.location.isEmpty())
        parts << queue.location;
    if (!queue.acceptsJobs)
        parts << QueueList::tr("takes no jobs");
    if (queue.isStopped)
        parts << QueueList::tr("stopped: jobs wait until it is resumed");
    if (!queue.stateMessage.isEmpty())
        parts << queue.stateMessage;
    return parts.join(QueueList::tr(" · "));
}

} // namespace

QueueList::QueueList(QWidget *parent) : QWidget(parent), m_popUp(new QComboBox(this)), m_note(new QLabel(this))
{
    m_popUp->setObjectName(QStringLiteral("printer"));
    m_popUp->setAccessibleName(tr("Printer"));
    m_popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_popUp->setMinimumContentsLength(26);
    m_popUp->setPlaceholderText(tr("No printer"));
    m_popUp->setMaxVisibleItems(20);
    m_note->setObjectName(QStringLiteral("printerNote"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
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

void QueueList::setQueues(const std::vector<PrintQueue> &queues)
{
    const QSignalBlocker quiet(m_popUp);
    m_popUp->clear();
    for (const PrintQueue &queue : queues) {
        m_popUp->addItem(itemText(queue), queue.name);
        m_popUp->setItemData(m_popUp->count() - 1, noteText(queue), kNoteRole);
    }
    m_popUp->setCurrentIndex(-1);
    m_popUp->setEnabled(!queues.empty());
    showNote();
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

void QueueList::markWithoutPane(const QString &queue, const QString &reason)
{
    const int index = m_popUp->findData(queue, kNameRole);
    if (index < 0 || !m_popUp->itemData(index, Qt::ToolTipRole).toString().isEmpty())
        return;
    m_popUp->setItemData(index, plainTip(reason), Qt::ToolTipRole);
    m_popUp->setItemText(index, tr("%1: no color options").arg(m_popUp->itemText(index)));
}

void QueueList::showNote()
{
    const QString note = m_popUp->currentData(kNoteRole).toString();
    m_note->setText(note);
    setPlainTip(m_note, note);
    m_popUp->setAccessibleDescription(note);
}

} // namespace bv
