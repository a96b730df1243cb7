// SPDX-License-Identifier: GPL-2.0-or-later
// Copies and page range. The range is checked while the user types.
#include "dialog/JobRows.h"

#include "platform/PlainTip.h"
#include "queues/JobOnlyKeys.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <QSpinBox>

namespace bv {

JobRows::JobRows(QWidget *parent)
    : QWidget(parent), m_form(new QFormLayout(this)), m_copies(new QSpinBox(this)),
      m_allPages(new QRadioButton(tr("A&ll pages"), this)), m_somePages(new QRadioButton(tr("Pa&ges:"), this)),
      m_range(new QLineEdit(this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_copies->setObjectName(QStringLiteral("copies"));
    m_copies->setRange(1, kMaxCopies);
    m_copies->setAccessibleName(tr("Copies"));
    m_allPages->setObjectName(QStringLiteral("allPages"));
    m_allPages->setChecked(true);
    m_somePages->setObjectName(QStringLiteral("somePages"));
    m_range->setObjectName(QStringLiteral("pageRange"));
    m_range->setAccessibleName(tr("Pages to print"));
    m_range->setPlaceholderText(tr("1-3, 8"));
    m_range->setClearButtonEnabled(true);

    auto *pages = new QHBoxLayout;
    pages->setContentsMargins(0, 0, 0, 0);
    pages->addWidget(m_allPages);
    pages->addWidget(m_somePages);
    pages->addWidget(m_range, 1);
    m_form->addRow(tr("Cop&ies:"), m_copies);
    m_form->addRow(pages);
    setTabOrder(m_copies, m_allPages);
    setTabOrder(m_allPages, m_somePages);
    setTabOrder(m_somePages, m_range);

    connect(m_copies, &QSpinBox::valueChanged, this, &JobRows::changed);
    connect(m_somePages, &QRadioButton::toggled, this, &JobRows::update);
    connect(m_range, &QLineEdit::textEdited, m_somePages, [this](const QString &text) {
        if (!text.isEmpty())
            m_somePages->setChecked(true);
    });
    connect(m_range, &QLineEdit::textChanged, this, &JobRows::update);
    // A user who selects "Pages" wants to type a range next.
    connect(m_somePages, &QRadioButton::clicked, m_range, [this] { m_range->setFocus(); });
    update();
}

JobOptions JobRows::options() const
{
    JobOptions options;
    if (m_copies->value() > 1)
        options[QString::fromLatin1(kCopiesKey)] = QString::number(m_copies->value());
    if (m_somePages->isChecked())
        options[QString::fromLatin1(kPageRangesKey)] = parsePageRange(m_range->text()).toOption();
    return options;
}

void JobRows::setOptions(const JobOptions &options)
{
    const auto value = [&options](const char *key) {
        const auto found = options.find(QString::fromLatin1(key));
        return found == options.end() ? QString() : found->second;
    };
    m_copies->setValue(std::max(1, value(kCopiesKey).toInt()));
    m_range->setText(value(kPageRangesKey));
    (m_range->text().isEmpty() ? m_allPages : m_somePages)->setChecked(true);
}

std::vector<PageRun> JobRows::pages() const
{
    return m_somePages->isChecked() ? parsePageRange(m_range->text()).runs : std::vector<PageRun>();
}

QString JobRows::problem() const
{
    return m_somePages->isChecked() ? parsePageRange(m_range->text()).error : QString();
}

void JobRows::update()
{
    const QString wrong = problem();
    setPlainTip(m_range, wrong.isEmpty() ? tr("Pages and ranges between commas, for example 1-3, 8, 12-") : wrong);
    m_range->setAccessibleDescription(m_range->toolTip());
    emit changed();
}

} // namespace bv
