// SPDX-License-Identifier: GPL-2.0-or-later
// The parts of a message, its colors, and its role.
#include "widgets/MessageRow.h"

#include "platform/PlainTip.h"
#include "widgets/BreakingLabel.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace bv {

namespace {

// Mixes two colors. `share` runs from 0 (only base) to 1 (only other).
QColor mixed(const QColor &base, const QColor &other, double share)
{
    return QColor::fromRgbF(float(base.redF() + (other.redF() - base.redF()) * share),
                            float(base.greenF() + (other.greenF() - base.greenF()) * share),
                            float(base.blueF() + (other.blueF() - base.blueF()) * share));
}

// Screen readers speak an alert that appears. Qt has no other way to set a widget's role.
QAccessibleInterface *makeAlert(const QString &, QObject *object)
{
    auto *row = qobject_cast<MessageRow *>(object);
    return row ? new QAccessibleWidget(row, QAccessible::AlertMessage) : nullptr;
}

} // namespace

MessageRow::MessageRow(MessageBar::Kind kind, QString text, QString topic, QWidget *parent)
    : QFrame(parent), m_kind(kind), m_text(std::move(text)), m_topic(std::move(topic)), m_label(new BreakingLabel(this))
{
    static const bool once = (QAccessible::installFactory(makeAlert), true);
    Q_UNUSED(once)
    setObjectName(QStringLiteral("message"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAccessibleName(m_text);
    m_label->setObjectName(QStringLiteral("messageText"));
    const bool problem = kind == MessageBar::Kind::Problem;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    auto *icon = new QLabel(this);
    icon->setPixmap(style()
                        ->standardIcon(problem ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation)
                        .pixmap(size, size));
    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("messageClose"));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::TabFocus);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAccessibleName(tr("Close this message"));
    setPlainTip(close, tr("Close this message"));
    connect(close, &QToolButton::clicked, this, &MessageRow::dismissed);
    m_close = close;

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    // Everything beside the text stays at its top, however long it is.
    icon->setFixedHeight(m_close->sizeHint().height());
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_label, 1);
    row->addWidget(m_close, 0, Qt::AlignTop);
    if (m_text.count(u'\n') > kFirstLines) {
        m_more = new QPushButton(tr("Show All"), this);
        m_more->setObjectName(QStringLiteral("messageMore"));
        m_more->setAutoDefault(false);
        m_more->setCheckable(true);
        connect(m_more, &QPushButton::toggled, this, [this](bool whole) {
            showText(whole);
            emit unfolded();
        });
        row->insertWidget(2, m_more, 0, Qt::AlignTop);
    }
    showText(false);
    tint();
}

void MessageRow::addAction(const QString &name)
{
    m_act = new QPushButton(name, this);
    m_act->setObjectName(QStringLiteral("messageAction"));
    m_act->setAutoDefault(false);
    connect(m_act, &QPushButton::clicked, this, &MessageRow::acted);
    auto *row = static_cast<QHBoxLayout *>(layout());
    row->insertWidget(row->count() - 1, m_act, 0, Qt::AlignTop);
}

QList<QWidget *> MessageRow::buttons() const
{
    QList<QWidget *> buttons;
    for (QWidget *button : std::initializer_list<QWidget *>{m_more, m_act, m_close})
        if (button)
            buttons << button;
    return buttons;
}

bool MessageRow::isUnfolded() const
{
    return m_more && m_more->isChecked();
}

void MessageRow::showText(bool whole)
{
    if (m_more)
        m_more->setText(whole ? tr("Show Less") : tr("Show All"));
    if (!m_more || whole) {
        m_label->setText(m_text);
        return;
    }
    const QStringList lines = m_text.split(u'\n');
    m_label->setText(lines.mid(0, kFirstLines).join(u'\n') + u'\n' +
                     tr("and %1 more").arg(QLocale().toString(lines.size() - kFirstLines)));
}

void MessageRow::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    // Reacts to the application's palette only. The row sets its own palette here, and reacting to that would never
    // end.
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::ApplicationPaletteChange)
        tint();
}

void MessageRow::tint()
{
    const QPalette base = parentWidget() ? parentWidget()->palette() : QPalette();
    QPalette tinted = base;
    const QColor hint =
        m_kind == MessageBar::Kind::Problem ? QColor(0xe0, 0x6c, 0x00) : base.color(QPalette::Highlight);
    tinted.setColor(QPalette::Window, mixed(base.color(QPalette::Window), hint, 0.18));
    setPalette(tinted);
}

} // namespace bv
