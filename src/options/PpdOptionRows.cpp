// SPDX-License-Identifier: GPL-2.0-or-later
// Builds the rows from the PPD. Keeps controls and ticket consistent.
#include "options/PpdOptionRows.h"

#include "options/MoreOptionsWindow.h"
#include "options/OptionMenu.h"
#include "options/PpdWords.h"
#include "platform/PlainTip.h"

#include <QFormLayout>
#include <QLocale>
#include <QPushButton>
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
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Paper t&ype:"),  QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Paper type"), {"MediaType"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "&Tray:"),        QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Tray"),       {"InputSlot"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "T&wo-sided:"),   QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Two-sided"),  {"Duplex", "JCLDuplex", "EFDuplex"}},
        {QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Resolutio&n:"),  QT_TRANSLATE_NOOP("bv::PpdOptionRows", "Resolution"), {"Resolution", "SetResolution", "JCLResolution"}},
    };
    // clang-format on
    return kinds;
}

} // namespace

PpdOptionRows::PpdOptionRows(ppd_file_t *ppd, QWidget *parent)
    : QWidget(parent), m_ppd(ppd), m_finder(ppd), m_form(new QFormLayout(this)), m_more(new QPushButton(this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_more->setObjectName(QStringLiteral("moreOptions"));
    m_more->setAutoDefault(false);
    m_more->hide();
    connect(m_more, &QPushButton::clicked, this, &PpdOptionRows::openWindow);
    for (const RowKind &kind : rowKinds()) {
        for (const char *keyword : kind.keywords) {
            const ppd_option_t *option = m_ppd ? ppdFindOption(m_ppd, keyword) : nullptr;
            if (option && option->num_choices > 0) {
                addRow(*option, tr(kind.label), tr(kind.name));
                break;
            }
        }
    }
    m_form->addRow(m_more);
}

QStringList PpdOptionRows::allLabels()
{
    QStringList labels;
    for (const RowKind &kind : rowKinds())
        labels << tr(kind.label);
    return labels;
}

void PpdOptionRows::addRow(const ppd_option_t &option, const QString &label, const QString &name)
{
    auto *menu = new OptionMenu(option, name, this);
    m_form->addRow(label, menu);
    m_finder.setTitle(menu->keyword(), name);
    connect(menu, &OptionMenu::choiceMade, this, &PpdOptionRows::choiceMade);
    m_menus.push_back(menu);
}

void PpdOptionRows::offerFurther(const QStringList &paneKeys, const QString &printer, PMPrintSettings settings)
{
    delete m_window; // it shows the options that there were
    m_printer = printer;
    m_further.take(m_ppd, paneKeys + keywords());
    m_further.readFrom(settings);
    m_more->setVisible(!m_further.entries().empty());
    showChanged();
}

void PpdOptionRows::openWindow()
{
    if (!m_window) {
        m_window = new MoreOptionsWindow(m_further, m_printer, window());
        m_window->setModal(true);
        connect(m_window, &MoreOptionsWindow::choiceMade, this, [this](const QString &keyword, const QString &choice) {
            m_further.choose(keyword, choice);
            showChanged();
            emit choiceMade(keyword, choice);
        });
        connect(m_window, &MoreOptionsWindow::defaultsWanted, this, [this] {
            for (const FurtherOptions::Entry &entry : m_further.entries())
                if (const QString usual = defaultChoice(*entry.option); entry.choice != usual) {
                    m_further.choose(entry.keyword(), usual);
                    emit choiceMade(entry.keyword(), usual);
                }
            showChanged();
        });
    }
    showNotes();
    m_window->show();
}

void PpdOptionRows::readFrom(PMPrintSettings settings)
{
    for (OptionMenu *menu : m_menus) {
        PrintValue value;
        PMPrintSettingsGetValue(settings, menu->keyword(), &value);
        const QString *choice = value.string();
        if (!choice || !menu->choose(*choice))
            menu->chooseDefault();
    }
    m_further.readFrom(settings);
    showChanged();
}

void PpdOptionRows::writeTo(PMPrintSettings settings) const
{
    for (const OptionMenu *menu : m_menus) {
        if (menu->currentIndex() >= 0)
            PMPrintSettingsSetValue(settings, menu->keyword(), menu->choice());
    }
    m_further.writeTo(settings);
}

void PpdOptionRows::restoreDefaults()
{
    for (OptionMenu *menu : m_menus)
        menu->chooseDefault();
    m_further.restoreDefaults();
    showChanged();
}

ConflictFinder::Choices PpdOptionRows::choices() const
{
    ConflictFinder::Choices choices;
    for (const OptionMenu *menu : m_menus)
        choices[menu->keyword()] = menu->choice();
    for (const FurtherOptions::Entry &entry : m_further.entries())
        choices[entry.keyword()] = entry.choice;
    return choices;
}

std::vector<SummaryEntry> PpdOptionRows::summary() const
{
    const auto general = [](const QString &keyword) { return SummaryHint{tr("General settings"), {}, keyword}; };
    std::vector<SummaryEntry> entries;
    for (const OptionMenu *menu : m_menus)
        entries.push_back({menu->name(), menu->currentText(), menu->usualText(), general(menu->keyword())});
    for (const FurtherOptions::Entry &entry : m_further.entries()) {
        const QString usual = defaultChoice(*entry.option);
        if (entry.choice != usual)
            entries.push_back({optionText(*entry.option), choiceText(*entry.option, entry.choice),
                               choiceText(*entry.option, usual), general(entry.keyword())});
    }
    return entries;
}

PrintDictionary PpdOptionRows::defaults() const
{
    PrintDictionary defaults;
    for (const OptionMenu *menu : m_menus)
        defaults.setValue(menu->keyword(), menu->usualChoice());
    return defaults;
}

bool PpdOptionRows::choose(const QString &keyword, const QString &choice)
{
    const auto row = std::find_if(m_menus.begin(), m_menus.end(),
                                  [&keyword](const OptionMenu *menu) { return menu->keyword() == keyword; });
    const bool isChosen = row == m_menus.end() ? m_further.choose(keyword, choice) : (*row)->choose(choice);
    if (!isChosen)
        return false;
    showChanged();
    emit choiceMade(keyword, choice);
    return true;
}

void PpdOptionRows::findConflicts(PMPrintSettings settings, const std::map<QString, QString> &overruling)
{
    m_conflicts.clear();
    if (!hasConstraints())
        return;
    ConflictFinder::Choices all = choices();
    for (const ppd_option_t *option = ppdFirstOption(m_ppd); option; option = ppdNextOption(m_ppd)) {
        const QString keyword = QString::fromUtf8(option->keyword);
        PrintValue value;
        PMPrintSettingsGetValue(settings, keyword, &value);
        if (const QString *choice = value.string())
            all.try_emplace(keyword, *choice);
    }
    QSet<QString> fixed;
    for (const auto &[keyword, choice] : overruling) {
        all[keyword] = choice;
        fixed.insert(keyword);
    }
    m_conflicts = m_finder.find(all, fixed);
}

void PpdOptionRows::explain(const std::map<QString, QString> &conflicts, const std::map<QString, QString> &origins)
{
    m_conflictNotes = conflicts;
    m_originNotes = origins;
    showNotes();
}

void PpdOptionRows::showNotes()
{
    for (OptionMenu *menu : m_menus)
        menu->explain(textFor(m_conflictNotes, menu->keyword()), textFor(m_originNotes, menu->keyword()));
    if (m_window)
        m_window->showChoices(m_conflictNotes, m_originNotes);
}

void PpdOptionRows::showChanged()
{
    const int changed = m_further.changed();
    m_more->setText(changed == 0 ? tr("M&ore Options…")
                                 : tr("M&ore Options (%1 changed)…").arg(QLocale().toString(changed)));
    setPlainTip(m_more, tr("All other options of this printer"));
    if (m_window)
        showNotes();
}

QStringList PpdOptionRows::keywords() const
{
    QStringList keywords;
    for (const OptionMenu *menu : m_menus)
        keywords << menu->keyword();
    return keywords;
}

} // namespace bv
