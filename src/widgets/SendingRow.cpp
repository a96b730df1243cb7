// SPDX-License-Identifier: GPL-2.0-or-later
// Text, bar and button side by side.
#include "widgets/SendingRow.h"

#include "platform/PlainTip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

namespace bv {

SendingRow::SendingRow(QWidget *parent)
    : QWidget(parent), m_text(new QLabel(this)), m_bar(new QProgressBar(this)),
      m_stop(new QPushButton(tr("Cancel &Job"), this))
{
    setObjectName(QStringLiteral("sendingRow"));
    m_text->setObjectName(QStringLiteral("sendingText"));
    m_bar->setObjectName(QStringLiteral("sendingProgress"));
    m_bar->setAccessibleName(tr("Progress of sending"));
    m_bar->setTextVisible(false);
    m_stop->setObjectName(QStringLiteral("cancelJob"));
    setPlainTip(m_stop, tr("Stop sending the job; the dialog stays as it is"));
    m_stop->setAutoDefault(false);
    connect(m_stop, &QPushButton::clicked, this, &SendingRow::stopped);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    row->addWidget(m_bar, 1);
    row->addWidget(m_stop);
    hide();
}

void SendingRow::showProgress(qint64 done, qint64 sum)
{
    constexpr int kSteps = 1000;
    const QLocale locale;
    m_bar->setRange(0, sum > 0 ? kSteps : 0);
    if (sum > 0)
        m_bar->setValue(int(double(done) / double(sum) * kSteps));
    m_text->setText(sum > 0 ? tr("Sending: %1 of %2").arg(locale.formattedDataSize(done), locale.formattedDataSize(sum))
                            : tr("Sending…"));
}

} // namespace bv
