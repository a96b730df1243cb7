// SPDX-License-Identifier: GPL-2.0-or-later
// Keeps the messages and the height that they may take.
#include "widgets/MessageBar.h"

#include "widgets/MessageRow.h"

#include <QAccessible>
#include <QEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace bv {

namespace {

constexpr int kLeastLines = 3; // of text, however small the window is
constexpr int kShare = 4;      // of the window's height: one part in so many
constexpr int kWholeShare = 2; // the same while the user reads all of a long list

} // namespace

MessageBar::MessageBar(QWidget *parent) : QScrollArea(parent), m_content(new QWidget)
{
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setWidgetResizable(true);
    auto *column = new QVBoxLayout(m_content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    setWidget(m_content);
    hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::say(Kind kind, const QString &text, const QString &actionName, std::function<void()> action,
                     const QString &topic)
{
    const auto same = std::find_if(m_rows.begin(), m_rows.end(), [&](const MessageRow *one) {
        return one->text() == text || (!topic.isEmpty() && one->topic() == topic);
    });
    if (same != m_rows.end())
        remove(*same);
    auto *row = new MessageRow(kind, text, topic, m_content);
    if (!actionName.isEmpty())
        row->addAction(actionName);
    connect(row, &MessageRow::dismissed, this, [this, row] { remove(row); });
    connect(row, &MessageRow::unfolded, this, [this, row] {
        updateGeometry();
        // From its first line on, once it has found its height.
        QMetaObject::invokeMethod(
            row, [this, row] { verticalScrollBar()->setValue(row->y()); }, Qt::QueuedConnection);
    });
    connect(row, &MessageRow::acted, this, [this, row, action = std::move(action)] {
        const std::function<void()> act = action; // it goes together with the row
        remove(row);
        if (act)
            act();
    });
    QWidget *before = m_rows.empty() ? m_content : m_rows.back()->buttons().back();
    m_content->layout()->addWidget(row);
    for (QWidget *button : row->buttons()) {
        setTabOrder(before, button);
        before = button;
    }
    m_rows.push_back(row);
    row->show();
    show();
    updateGeometry();
    // The newest one counts.
    QMetaObject::invokeMethod(
        this, [this] { verticalScrollBar()->setValue(verticalScrollBar()->maximum()); }, Qt::QueuedConnection);
    QAccessibleEvent renamed(row, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    QAccessibleEvent alert(row, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::remove(MessageRow *row)
{
    m_rows.erase(std::remove(m_rows.begin(), m_rows.end(), row), m_rows.end());
    // The focus goes on while the row is still in the window.
    row->hide();
    row->deleteLater();
    setVisible(!m_rows.empty());
    updateGeometry();
}

void MessageBar::drop(const QString &topic)
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&topic](const MessageRow *one) { return one->topic() == topic; });
    if (found != m_rows.end())
        remove(*found);
}

void MessageBar::clear()
{
    while (!m_rows.empty())
        remove(m_rows.back());
}

QString MessageBar::text() const
{
    QStringList texts;
    for (const MessageRow *row : m_rows)
        texts << row->text();
    return texts.join(u'\n');
}

int MessageBar::contentHeight() const
{
    const QLayout *column = m_content->layout();
    return column->hasHeightForWidth() ? column->heightForWidth(std::max(viewport()->width(), 1))
                                       : column->sizeHint().height();
}

QSize MessageBar::sizeHint() const
{
    const bool isReading =
        std::any_of(m_rows.begin(), m_rows.end(), [](const MessageRow *row) { return row->isUnfolded(); });
    const int most =
        std::max(window()->height() / (isReading ? kWholeShare : kShare), fontMetrics().height() * kLeastLines);
    return {m_content->minimumSizeHint().width(), std::min(contentHeight(), most)};
}

QSize MessageBar::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * kLeastLines,
            std::min(contentHeight(), fontMetrics().height() * kLeastLines)};
}

void MessageBar::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    // Texts get taller when the bar gets narrower.
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

bool MessageBar::eventFilter(QObject *object, QEvent *event)
{
    // A message that shows all of its text is taller.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

} // namespace bv
