// SPDX-License-Identifier: GPL-2.0-or-later
// Words and button of the line.
#include "plugin/SwitchedOffNote.h"

#include "colorrules/GreyedReasons.h"
#include "platform/Bundle.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

SwitchedOffNote::SwitchedOffNote(QWidget *parent)
    : QWidget(parent), m_text(new QLabel(this)), m_turnOff(new QPushButton(localizedString("Turn Off"), this))
{
    setObjectName(QStringLiteral("note_SwitchedOff"));
    m_text->setObjectName(QStringLiteral("text_SwitchedOff"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_turnOff->setObjectName(QStringLiteral("button_TurnOff"));
    m_turnOff->setAutoDefault(false);
    auto *row = new QHBoxLayout(this);
    QMargins margins = row->contentsMargins(); // those of the panes, but for the space between
    margins.setTop(0);
    row->setContentsMargins(margins);
    row->addWidget(m_text, 1);
    row->addWidget(m_turnOff);
    for (QWidget *part : std::initializer_list<QWidget *>{m_text, m_turnOff}) {
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
        part->hide();
    }
    connect(m_turnOff, &QPushButton::clicked, this, &SwitchedOffNote::turnOff);
}

void SwitchedOffNote::update(PDEControlTable table)
{
    const bv::SwitchedOff found = bv::switchedOffByBox(table);
    m_box = found.box ? qobject_cast<QCheckBox *>(found.box->control) : nullptr;
    if (m_box) {
        const QString name = localizedString(found.box->summaryName ? found.box->summaryName : found.box->identifier);
        const QString text =
            found.settings == 1
                ? localizedString("%1 is on: one setting is not used.").arg(name)
                : localizedString("%1 is on: %2 settings are not used.").arg(name, QLocale().toString(found.settings));
        m_text->setText(text);
        m_turnOff->setAccessibleName(localizedString("Turn off %1").arg(name));
        m_turnOff->setAccessibleDescription(text);
    }
    m_text->setVisible(m_box);
    m_turnOff->setVisible(m_box);
}

void SwitchedOffNote::turnOff()
{
    if (!m_box)
        return;
    // The button goes; the next key press belongs to the box, or to its pane while that is hidden.
    if (m_box->isVisible())
        m_box->setFocus(Qt::OtherFocusReason);
    m_box->click();
    emit turnedOff();
}
