// SPDX-License-Identifier: GPL-2.0-or-later
// Text, indicator and button, one below the other in the middle.
#include "widgets/WaitPanel.h"

#include "widgets/BreakingLabel.h"

#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace bv {

WaitPanel::WaitPanel(QWidget *parent)
    : QWidget(parent), m_text(new BreakingLabel(this)), m_busy(new QProgressBar(this)), m_skip(new QPushButton(this))
{
    m_text->setObjectName(QStringLiteral("placeText"));
    m_text->setAlignment(Qt::AlignCenter);
    m_busy->setObjectName(QStringLiteral("waitIndicator"));
    m_busy->setRange(0, 0); // moves, and shows no share
    m_busy->setTextVisible(false);
    m_busy->setFixedWidth(fontMetrics().averageCharWidth() * 30);
    m_skip->setObjectName(QStringLiteral("skipWait"));
    m_skip->setAutoDefault(false);
    connect(m_skip, &QPushButton::clicked, this, &WaitPanel::skipped);

    auto *column = new QVBoxLayout(this);
    column->addStretch(1);
    column->addWidget(m_text);
    column->addWidget(m_busy, 0, Qt::AlignHCenter);
    column->addWidget(m_skip, 0, Qt::AlignHCenter);
    column->addStretch(1);
    say(QString());
}

void WaitPanel::say(const QString &sentence)
{
    m_text->setText(sentence);
    m_busy->hide();
    m_skip->hide();
}

void WaitPanel::wait(const QString &sentence, const QString &skipTitle)
{
    m_text->setText(sentence);
    m_busy->setAccessibleName(sentence);
    m_busy->show();
    m_skip->setText(skipTitle);
    m_skip->setVisible(!skipTitle.isEmpty());
}

QString WaitPanel::text() const
{
    return m_text->text();
}

} // namespace bv
