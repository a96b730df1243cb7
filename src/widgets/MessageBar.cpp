// SPDX-License-Identifier: GPL-2.0-or-later
// The message bar: icon, text, action button and close button.
#include "widgets/MessageBar.h"

#include "platform/PlainTip.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
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

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(new QLabel(this)), m_act(new QPushButton(this)),
      m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setObjectName(QStringLiteral("messageText"));
    m_close->setObjectName(QStringLiteral("messageClose"));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::TabFocus);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_close->setAccessibleName(tr("Close this message"));
    setPlainTip(m_close, tr("Close this message"));
    connect(m_close, &QToolButton::clicked, this, &MessageBar::clear);
    m_act->setObjectName(QStringLiteral("messageAction"));
    m_act->setAutoDefault(false);
    connect(m_act, &QPushButton::clicked, this, [this] {
        const std::function<void()> action = std::move(m_action);
        clear();
        if (action)
            action();
    });

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_act);
    row->addWidget(m_close, 0, Qt::AlignTop);
    hide();
}

void MessageBar::say(Kind kind, const QString &text, const QString &actionName, std::function<void()> action)
{
    m_kind = kind;
    m_action = std::move(action);
    m_act->setText(actionName);
    m_act->setVisible(!actionName.isEmpty());
    const bool problem = kind == Kind::Problem;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_icon->setPixmap(style()
                          ->standardIcon(problem ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation)
                          .pixmap(size, size));
    m_text->setText(text);
    m_text->setAccessibleName(text);
    tint();
    show();
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::clear()
{
    m_text->clear();
    m_action = {};
    hide();
}

QString MessageBar::text() const
{
    return m_text->text();
}

void MessageBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    // Reacts to the application's palette only. The bar sets its own palette here, and reacting to that would never
    // end.
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::ApplicationPaletteChange)
        tint();
}

void MessageBar::tint()
{
    const QPalette base = parentWidget() ? parentWidget()->palette() : QPalette();
    QPalette tinted = base;
    const QColor hint = m_kind == Kind::Problem ? QColor(0xe0, 0x6c, 0x00) : base.color(QPalette::Highlight);
    tinted.setColor(QPalette::Window, mixed(base.color(QPalette::Window), hint, 0.18));
    setPalette(tinted);
}

} // namespace bv
