// SPDX-License-Identifier: GPL-2.0-or-later
// Builds the rows from the PPD with libcups. Keeps rows, ticket and conflict line consistent.
#include "dialog/PpdOptionRows.h"

#include "platform/PlainTip.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

namespace bv {

namespace {

struct RowKind
{
    const char *label;                  // with its mnemonic
    const char *name;                   // for use in a sentence
    std::vector<const char *> keywords; // the first one that the PPD has is used
};

// The rows in display order. Some makers' PPDs use a keyword of their own for the option.
const std::vector<RowKind> &rowKinds()
{
    // clang-format off
    static const std::vector<RowKind> kinds = {
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Paper si&ze:"),  QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Paper size"), {"PageSize"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "&Tray:"),        QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Tray"),       {"InputSlot"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "T&wo-sided:"),   QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Two-sided"),  {"Duplex", "JCLDuplex", "EFDuplex"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Re&solution:"),  QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Resolution"), {"Resolution", "SetResolution", "JCLResolution"}},
    };
    // clang-format on
    return kinds;
}

QString choiceText(const ppd_choice_t &choice)
{
    const QString text = QString::fromUtf8(choice.text);
    return text.isEmpty() ? QString::fromUtf8(choice.choice) : text;
}

QString optionText(const ppd_option_t &option)
{
    const QString text = QString::fromUtf8(option.text);
    return text.isEmpty() ? QString::fromUtf8(option.keyword) : text;
}

// Selects a choice by keyword. False if the pop-up has no such item.
bool choose(QComboBox *popUp, const QString &choice)
{
    const int index = popUp->findData(choice);
    if (index < 0)
        return false;
    const QSignalBlocker quiet(popUp);
    popUp->setCurrentIndex(index);
    return true;
}

} // namespace

PpdOptionRows::PpdOptionRows(ppd_file_t *ppd, QWidget *parent)
    : QWidget(parent), m_ppd(ppd), m_form(new QFormLayout(this)), m_conflict(new QLabel(this)),
      m_conflictIcon(new QLabel(this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_conflict->setObjectName(QStringLiteral("conflictText"));
    m_conflict->setTextFormat(Qt::PlainText);
    m_conflict->setWordWrap(true);
    m_conflict->hide();
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_conflictIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    m_conflictIcon->setAlignment(Qt::AlignTop | Qt::AlignTrailing);
    m_conflictIcon->hide();
    for (const RowKind &kind : rowKinds()) {
        for (const char *keyword : kind.keywords) {
            ppd_option_t *option = m_ppd ? ppdFindOption(m_ppd, keyword) : nullptr;
            if (option && option->num_choices > 0) {
                addRow(option, tr(kind.label), tr(kind.name));
                break;
            }
        }
    }
    m_form->addRow(m_conflictIcon, m_conflict);
    restoreDefaults();
}

void PpdOptionRows::addRow(ppd_option_t *option, const QString &label, const QString &name)
{
    auto *popUp = new QComboBox(this);
    popUp->setObjectName(QStringLiteral("row_") + QString::fromUtf8(option->keyword));
    popUp->setAccessibleName(name);
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    popUp->setMinimumContentsLength(12);
    for (int i = 0; i < option->num_choices; ++i)
        popUp->addItem(choiceText(option->choices[i]), QString::fromUtf8(option->choices[i].choice));
    m_form->addRow(label, popUp);
    const QString keyword = QString::fromUtf8(option->keyword);
    connect(popUp, &QComboBox::currentIndexChanged, this, [this, popUp, keyword] {
        setPlainTip(popUp, popUp->currentText());
        emit choiceMade(keyword, popUp->currentData().toString());
    });
    m_rows.push_back({option, popUp, name});
}

void PpdOptionRows::readFrom(PMPrintSettings settings)
{
    restoreDefaults();
    for (const Row &row : m_rows) {
        PrintValue value;
        PMPrintSettingsGetValue(settings, QString::fromUtf8(row.option->keyword), &value);
        if (const QString *choice = value.string())
            choose(row.popUp, *choice);
    }
    updateConflicts(settings);
}

void PpdOptionRows::writeTo(PMPrintSettings settings) const
{
    for (const Row &row : m_rows) {
        if (row.popUp->currentIndex() >= 0)
            PMPrintSettingsSetValue(settings, QString::fromUtf8(row.option->keyword),
                                    row.popUp->currentData().toString());
    }
}

void PpdOptionRows::restoreDefaults()
{
    for (const Row &row : m_rows) {
        if (!choose(row.popUp, QString::fromUtf8(row.option->defchoice)))
            choose(row.popUp, QString::fromUtf8(row.option->choices[0].choice));
        setPlainTip(row.popUp, row.popUp->currentText());
    }
}

void PpdOptionRows::updateConflicts(PMPrintSettings settings)
{
    QStringList sentences;
    if (m_ppd) {
        markEverything(settings);
        if (ppdConflicts(m_ppd) > 0)
            sentences = conflictSentences();
    }
    m_conflict->setText(sentences.join(u'\n'));
    m_conflict->setVisible(!sentences.isEmpty());
    m_conflictIcon->setVisible(!sentences.isEmpty());
}

bool PpdOptionRows::hasConstraints() const
{
    return m_ppd && (m_ppd->num_consts > 0 || ppdFindAttr(m_ppd, "cupsUIConstraints", nullptr));
}

QString PpdOptionRows::conflictText() const
{
    return m_conflict->text();
}

void PpdOptionRows::markEverything(PMPrintSettings settings)
{
    ppdMarkDefaults(m_ppd);
    for (ppd_option_t *option = ppdFirstOption(m_ppd); option; option = ppdNextOption(m_ppd)) {
        PrintValue value;
        PMPrintSettingsGetValue(settings, QString::fromUtf8(option->keyword), &value);
        const QString *choice = value.string();
        const QByteArray keyword = choice ? choice->toUtf8() : QByteArray();
        if (choice && ppdFindChoice(option, keyword.constData()))
            ppdMarkOption(m_ppd, option->keyword, keyword.constData());
    }
    for (const Row &row : m_rows) {
        const QByteArray choice = row.popUp->currentData().toString().toUtf8();
        ppdMarkOption(m_ppd, row.option->keyword, choice.constData());
    }
}

// One sentence for each row in conflict. It names all options involved.
QStringList PpdOptionRows::conflictSentences() const
{
    QStringList sentences;
    for (const Row &row : m_rows) {
        if (!row.option->conflicted)
            continue;
        const QByteArray choice = row.popUp->currentData().toString().toUtf8();
        cups_option_t *options = nullptr;
        const int count = cupsGetConflicts(m_ppd, row.option->keyword, choice.constData(), &options);
        QStringList others;
        for (int i = 0; i < count; ++i) {
            const ppd_option_t *other = ppdFindOption(m_ppd, options[i].name);
            const ppd_choice_t *value = other ? ppdFindMarkedChoice(m_ppd, options[i].name) : nullptr;
            if (other && value && other != row.option)
                others << tr("%1 “%2”", "option and choice").arg(optionText(*other), choiceText(*value));
        }
        cupsFreeOptions(count, options);
        if (!others.isEmpty())
            sentences << tr("%1 “%2” does not go together with %3. Change one of them.")
                             .arg(row.name, row.popUp->currentText(), others.join(tr(", ")));
    }
    sentences.removeDuplicates();
    return sentences;
}

QStringList PpdOptionRows::keywords() const
{
    QStringList keywords;
    for (const Row &row : m_rows)
        keywords << QString::fromUtf8(row.option->keyword);
    return keywords;
}

} // namespace bv
