// SPDX-License-Identifier: GPL-2.0-or-later
// The bar's icon, text and buttons.
#include "options/ConflictBar.h"

#include "platform/PlainTip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <utility>

namespace bv {

QString conflictSentences(const std::vector<Conflict> &conflicts)
{
    constexpr size_t kMost = 3;
    QStringList sentences;
    for (size_t i = 0; i < std::min(kMost, conflicts.size()); ++i)
        sentences << conflicts[i].sentence;
    if (conflicts.size() > kMost)
        sentences << ConflictBar::tr("and %1 more.", "conflicts").arg(QLocale().toString(conflicts.size() - kMost));
    return sentences.join(u'\n');
}

ConflictBar::ConflictBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(new QLabel(this)), m_buttons(new QHBoxLayout)
{
    setObjectName(QStringLiteral("conflictBar"));
    setFrameShape(QFrame::StyledPanel);
    m_text->setObjectName(QStringLiteral("conflictText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    m_icon->setAlignment(Qt::AlignTop);
    auto *row = new QHBoxLayout;
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 4, 8, 4);
    column->addLayout(row);
    m_buttons->addStretch(1);
    column->addLayout(m_buttons);
    hide();
}

void ConflictBar::showConflicts(const std::vector<Conflict> &conflicts)
{
    m_sentences = conflictSentences(conflicts);
    const bool isSettled = conflicts.empty();
    const QString sentences = isSettled ? tr("Settled.", "conflicts") : m_sentences;
    if (sentences != m_text->text()) {
        m_text->setText(sentences);
        m_text->setAccessibleName(sentences);
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
        m_icon->setPixmap(style()
                              ->standardIcon(isSettled ? QStyle::SP_DialogApplyButton : QStyle::SP_MessageBoxWarning)
                              .pixmap(size, size));
    }
    QString shown;
    for (const Conflict::Way &way : conflicts.empty() ? std::vector<Conflict::Way>() : conflicts.front().ways)
        shown += way.words + u'\n';
    if (shown != m_shown) {
        // Buttons stay while they mean the same, so that one that is being clicked or has the focus is not replaced.
        m_shown = shown;
        for (QWidget *button : std::exchange(m_ways, {})) {
            button->hide();
            button->deleteLater();
        }
        for (const Conflict::Way &way : conflicts.empty() ? std::vector<Conflict::Way>() : conflicts.front().ways) {
            auto *button = new QPushButton(QString(way.words).replace(u'&', QStringLiteral("&&")), this);
            button->setObjectName(QStringLiteral("settle_") + way.keyword);
            button->setAutoDefault(false);
            button->setMinimumWidth(0);
            button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
            setPlainTip(button, way.words);
            button->setAccessibleDescription(conflicts.front().sentence);
            connect(button, &QPushButton::clicked, this, [this, way] { settle(way); });
            m_buttons->addWidget(button);
            button->show(); // at once, so that it can take the focus
            m_ways << button;
        }
        emit buttonsChanged();
    }
    setVisible(!isSettled || m_keepsPlace);
}

void ConflictBar::settle(const Conflict::Way &way)
{
    if (underMouse()) {
        m_keepsPlace = true;
        setMinimumHeight(height());
    }
    emit settled(way.keyword, way.choice);
}

void ConflictBar::leaveEvent(QEvent *event)
{
    QFrame::leaveEvent(event);
    m_keepsPlace = false;
    setMinimumHeight(0);
    setVisible(!m_sentences.isEmpty());
}

} // namespace bv
