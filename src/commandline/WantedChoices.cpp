// SPDX-License-Identifier: GPL-2.0-or-later
// Takes words apart and looks them up.
#include "commandline/WantedChoices.h"

#include "commandline/NearestWords.h"
#include "dialog/JobRows.h"
#include "jobs/JobAttributes.h"
#include "jobs/PageRange.h"
#include "options/OptionMenu.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PpdChoice.h"
#include "queues/StandardOptions.h"

#include <QComboBox>
#include <QCoreApplication>
#include <algorithm>
#include <cups/cups.h>

namespace bv {

namespace {

constexpr char kInstallable[] = "InstallableOptions";
constexpr char kPageRegion[] = "PageRegion";
constexpr char kPageSize[] = "PageSize";
constexpr char kMedia[] = "media";
constexpr char kColorMode[] = "print-color-mode";
constexpr qsizetype kMostListed = 12; // choices in a sentence; a printer may have hundreds of papers

QString tr(const char *text)
{
    return QCoreApplication::translate("WantedChoices", text);
}

QString listed(const QStringList &words)
{
    return words.join(QStringLiteral(", "));
}

void addOptions(const ppd_group_t &group, std::vector<GroupedOption> &options)
{
    if (qstrcmp(group.name, kInstallable) == 0)
        return;
    for (int i = 0; i < group.num_options; ++i)
        if (qstrcmp(group.options[i].keyword, kPageRegion) != 0)
            options.push_back({&group.options[i], &group});
    for (int i = 0; i < group.num_subgroups; ++i)
        addOptions(group.subgroups[i], options);
}

// Collects the choices word by word. Each function returns a sentence for the user, or an empty text.
class Collector
{
public:
    Collector(ppd_file_t *ppd, const std::map<QString, PaneOption> &pane)
        : m_ppd(ppd), m_pane(pane), m_options(jobChoices(ppd)),
          m_colorOptions(choicesOfStandardOption(QLatin1String(kColorMode), QStringLiteral("monochrome"), ppd))
    {}

    QString take(const QString &name, const QString &value);
    WantedChoices result();

private:
    QString takeOption(ppd_option_t &option, const QString &value);
    QString takeMedia(const QString &value);
    QString takeStandard(const QString &name, const QString &value);
    std::map<QString, QString> choicesForColor() const;
    QString takeAttribute(const JobAttribute &attribute, const QString &value);
    QString takeCopies(const QString &value);
    QString takePages(const QString &value);
    QString unknown(const QString &name) const;
    QString notOffered(const QString &name, const QString &value, const QStringList &offered) const;
    bool isJobChoice(const ppd_option_t &option) const;

    ppd_file_t *m_ppd;
    const std::map<QString, PaneOption> &m_pane;
    std::vector<GroupedOption> m_options;
    std::map<QString, QString> m_colorOptions; // the choices that print in gray, by keyword
    std::map<QString, WantedChoice> m_chosen;
    std::map<QString, PrintDictionary> m_entries; // by the keyword of their option
    JobOptions m_attributes;
};

QString Collector::take(const QString &name, const QString &value)
{
    if (name == QLatin1String(kCopiesKey))
        return takeCopies(value);
    if (name == QLatin1String(kPageRangesKey))
        return takePages(value);
    const bool isRegion = name.compare(QLatin1String(kPageRegion), Qt::CaseInsensitive) == 0;
    if (ppd_option_t *option = findOption(m_ppd, isRegion ? QString::fromLatin1(kPageSize) : name))
        return isJobChoice(*option) ? takeOption(*option, value)
                                    : tr("%1 tells what is built into the printer; no job can choose it.").arg(name);
    if (isStandardOption(name))
        return name == QLatin1String(kMedia) ? takeMedia(value) : takeStandard(name, value);
    if (const JobAttribute *attribute = findJobAttribute(name))
        return takeAttribute(*attribute, value);
    if (const ppd_option_t *owner = ownerOfCustomEntry(m_ppd, name)) {
        m_entries[QString::fromUtf8(owner->keyword)].setValue(name, PrintValue(value));
        return {};
    }
    return unknown(name);
}

QString Collector::takeOption(ppd_option_t &option, const QString &value)
{
    const QString keyword = QString::fromUtf8(option.keyword);
    const QString choice = spelledChoice(&option, value);
    m_attributes.erase(keyword);
    if (m_colorOptions.count(keyword) != 0)
        m_attributes.erase(QLatin1String(kColorMode)); // what was said before counts no more
    if (choice.isEmpty()) {
        const auto held = m_pane.find(keyword);
        const QWidget *control = held == m_pane.end() ? nullptr : held->second.control;
        const QStringList items = itemsBeside(option, control);
        if (items.contains(value)) {
            m_chosen[keyword] = {keyword, {}, value, {}};
            return {};
        }
        QStringList offered;
        for (int i = 0; i < option.num_choices; ++i)
            offered << QString::fromUtf8(option.choices[i].choice);
        return notOffered(keyword, value, offered + items);
    }
    if (choice == u"Custom" && value.startsWith(u"Custom.", Qt::CaseInsensitive)) {
        // The numbers are for the print server, which knows their meaning.
        m_chosen.erase(keyword);
        m_attributes[keyword] = value;
    } else {
        m_chosen[keyword] = {keyword, choice, {}, {}};
    }
    return {};
}

// A size, a tray or a type of paper, or several with commas between. libcups knows trays and types by their standard
// names only; people write them as the printer calls them.
QString Collector::takeMedia(const QString &value)
{
    for (const QString &part : value.split(u',', Qt::SkipEmptyParts)) {
        QString problem = takeStandard(QLatin1String(kMedia), part);
        for (const char *keyword : {"InputSlot", "MediaType"}) {
            ppd_option_t *option = problem.isEmpty() ? nullptr : findOption(m_ppd, QLatin1String(keyword));
            if (option && !spelledChoice(option, part).isEmpty())
                problem = takeOption(*option, part);
        }
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QString Collector::takeStandard(const QString &name, const QString &value)
{
    const bool isColor = name == QLatin1String(kColorMode) && value == u"color";
    std::map<QString, QString> choices = choicesOfStandardOption(name, value, m_ppd);
    if (choices.empty() && isColor)
        choices = choicesForColor();
    for (const auto &[keyword, choice] : choices) {
        const bool isCustom = choice == u"Custom" && value.startsWith(u"Custom.", Qt::CaseInsensitive);
        takeOption(*findOption(m_ppd, keyword), isCustom ? value : choice);
    }
    // The print server does this itself, or has a default of its own that must not hold.
    const bool isServers =
        isColor ||
        (choices.empty() && (name == u"mirror" || (name == QLatin1String(kColorMode) && value == u"monochrome")));
    if (isServers)
        m_attributes[name] = value;
    const bool isUsual = name == u"sides" && value == u"one-sided"; // of a printer that prints no other way
    return choices.empty() && !isServers && !isUsual ? notOffered(name, value, {}) : QString();
}

// PPDs may say how to print in gray only. In color is then how the printer does it otherwise.
std::map<QString, QString> Collector::choicesForColor() const
{
    std::map<QString, QString> choices = m_colorOptions;
    for (auto &[keyword, choice] : choices)
        choice = defaultChoice(*findOption(m_ppd, keyword));
    return choices;
}

QString Collector::takeAttribute(const JobAttribute &attribute, const QString &value)
{
    const QString name = QLatin1String(attribute.name);
    if (!attribute.takes(value))
        return tr("%1 cannot be “%2”; it takes %3.").arg(name, value, attribute.values());
    m_attributes[name] = value;
    return {};
}

QString Collector::takeCopies(const QString &value)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies < 1 || copies > JobRows::kMaxCopies)
        return tr("%1 cannot be “%2”; it takes %3.")
            .arg(QLatin1String(kCopiesKey), value, QStringLiteral("1-%1").arg(JobRows::kMaxCopies));
    m_attributes[QLatin1String(kCopiesKey)] = QString::number(copies);
    return {};
}

QString Collector::takePages(const QString &value)
{
    const PageRange range = parsePageRange(value);
    if (range.isValid())
        m_attributes[QLatin1String(kPageRangesKey)] = range.toOption();
    return range.error;
}

QString Collector::unknown(const QString &name) const
{
    QStringList known = jobAttributeNames();
    for (const GroupedOption &one : m_options)
        known << QString::fromUtf8(one.option->keyword);
    const QStringList nearest = nearestWords(name, known);
    return nearest.isEmpty() ? tr("This printer has no option “%1”. bvprint --list shows all.").arg(name)
                             : tr("This printer has no option “%1”. Did you mean %2? bvprint --list shows all.")
                                   .arg(name, listed(nearest));
}

QString Collector::notOffered(const QString &name, const QString &value, const QStringList &offered) const
{
    QString sentence = tr("%1: this printer does not offer “%2”.").arg(name, value);
    if (offered.isEmpty())
        return sentence;
    const QStringList nearest = offered.size() > kMostListed ? nearestWords(value, offered) : offered;
    return sentence + u' ' +
           (nearest.isEmpty() ? tr("bvprint --list shows all choices.") : tr("Choose one of: %1").arg(listed(nearest)));
}

bool Collector::isJobChoice(const ppd_option_t &option) const
{
    return std::any_of(m_options.begin(), m_options.end(),
                       [&option](const GroupedOption &one) { return one.option == &option; });
}

WantedChoices Collector::result()
{
    for (const auto &[keyword, entries] : m_entries) {
        const PrintValue isCustom = entries.value(keyword + QStringLiteral("Custom"));
        // Such entries stand in tickets also where a choice of the PPD counts.
        if (isCustom.string() && isCustom.string()->compare(u"True", Qt::CaseInsensitive) == 0)
            m_chosen[keyword] = {keyword, {}, {}, entries};
    }
    WantedChoices wanted;
    wanted.attributes = m_attributes;
    for (const GroupedOption &one : m_options)
        if (const auto chosen = m_chosen.find(QString::fromUtf8(one.option->keyword)); chosen != m_chosen.end())
            wanted.choices.push_back(chosen->second);
    return wanted;
}

} // namespace

QString WantedChoice::word() const
{
    if (!entries.entries.empty()) {
        QStringList words;
        for (const auto &[key, value] : entries.entries)
            words << key + u'=' + (value.string() ? *value.string() : QString());
        return words.join(u' ');
    }
    return keyword + u'=' + (choice.isEmpty() ? item : choice);
}

Result<OptionWords> splitOptions(const QStringList &options)
{
    OptionWords words;
    for (const QString &text : options) {
        cups_option_t *list = nullptr;
        const int count = cupsParseOptions(text.toUtf8().constData(), 0, &list);
        for (int i = 0; i < count; ++i)
            words.emplace_back(QString::fromUtf8(list[i].name), QString::fromUtf8(list[i].value));
        cupsFreeOptions(count, list);
        if (count == 0)
            return Result<OptionWords>::failure(tr("“%1” is no option. Write KEYWORD=CHOICE.").arg(text));
    }
    return words;
}

Result<WantedChoices> wantedChoices(const OptionWords &words, ppd_file_t *ppd,
                                    const std::map<QString, PaneOption> &pane)
{
    Collector collector(ppd, pane);
    for (const auto &[name, value] : words)
        if (const QString problem = collector.take(name, value); !problem.isEmpty())
            return Result<WantedChoices>::failure(problem);
    return collector.result();
}

std::vector<GroupedOption> jobChoices(ppd_file_t *ppd)
{
    std::vector<GroupedOption> options;
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        addOptions(ppd->groups[i], options);
    std::erase_if(options,
                  [ppd](const GroupedOption &one) { return ppdFindOption(ppd, one.option->keyword) != one.option; });
    return options;
}

QStringList itemsBeside(const ppd_option_t &option, const QWidget *control)
{
    QStringList items;
    const auto *menu = qobject_cast<const QComboBox *>(control);
    for (int i = option.num_choices; menu && i < menu->count(); ++i)
        items << menu->itemText(i);
    return items;
}

} // namespace bv
