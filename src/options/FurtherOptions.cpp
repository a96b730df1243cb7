// SPDX-License-Identifier: GPL-2.0-or-later
// Walks the PPD's groups.
#include "options/FurtherOptions.h"

#include "options/OptionMenu.h"
#include "options/PpdWords.h"

#include <algorithm>

namespace bv {

namespace {

// The group of hardware that may be built in (PPD 4.3, section 5.2), and the option that PageSize sets as well.
constexpr char kInstallable[] = "InstallableOptions";
constexpr char kPageRegion[] = "PageRegion";

bool hasChoice(const ppd_option_t &option, const QString &choice)
{
    return std::any_of(option.choices, option.choices + option.num_choices,
                       [&choice](const ppd_choice_t &one) { return choice == QString::fromUtf8(one.choice); });
}

} // namespace

void FurtherOptions::take(ppd_file_t *ppd, const QStringList &elsewhere)
{
    m_entries.clear();
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        take(ppd->groups[i], elsewhere);
}

void FurtherOptions::take(const ppd_group_t &group, const QStringList &elsewhere)
{
    if (qstrcmp(group.name, kInstallable) == 0)
        return;
    for (int i = 0; i < group.num_options; ++i) {
        const ppd_option_t &option = group.options[i];
        // One choice is none.
        if (option.num_choices > 1 && qstrcmp(option.keyword, kPageRegion) != 0 &&
            !elsewhere.contains(QString::fromUtf8(option.keyword)))
            m_entries.push_back({&option, groupText(group), defaultChoice(option)});
    }
    for (int i = 0; i < group.num_subgroups; ++i)
        take(group.subgroups[i], elsewhere);
}

int FurtherOptions::changed() const
{
    return int(std::count_if(m_entries.begin(), m_entries.end(),
                             [](const Entry &entry) { return entry.choice != defaultChoice(*entry.option); }));
}

void FurtherOptions::readFrom(PMPrintSettings settings)
{
    for (Entry &entry : m_entries) {
        PrintValue value;
        PMPrintSettingsGetValue(settings, entry.keyword(), &value);
        const QString *choice = value.string();
        entry.choice = choice && hasChoice(*entry.option, *choice) ? *choice : defaultChoice(*entry.option);
    }
}

void FurtherOptions::writeTo(PMPrintSettings settings) const
{
    for (const Entry &entry : m_entries)
        PMPrintSettingsSetValue(settings, entry.keyword(),
                                entry.choice == defaultChoice(*entry.option) ? PrintValue() : PrintValue(entry.choice));
}

void FurtherOptions::restoreDefaults()
{
    for (Entry &entry : m_entries)
        entry.choice = defaultChoice(*entry.option);
}

bool FurtherOptions::choose(const QString &keyword, const QString &choice)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&keyword](const Entry &entry) { return entry.keyword() == keyword; });
    if (found == m_entries.end() || !hasChoice(*found->option, choice))
        return false;
    found->choice = choice;
    return true;
}

} // namespace bv
