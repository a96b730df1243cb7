// SPDX-License-Identifier: GPL-2.0-or-later
// Has libcups judge the PPD's constraints.
#include "options/ConflictFinder.h"

#include "options/OptionMenu.h"
#include "options/PpdWords.h"

#include <QStringList>
#include <algorithm>
#include <set>

namespace bv {

namespace {

constexpr char kInstallable[] = "InstallableOptions";
// libcups marks it together with PageSize, so that every conflict of the paper size would come twice.
constexpr char kPageRegion[] = "PageRegion";
// An option may have thousands of choices; one of the first settles a conflict or none does.
constexpr int kMostTried = 100;

// The options that a choice is in conflict with, given the choices that are marked.
QStringList conflictsOf(ppd_file_t *ppd, const char *keyword, const char *choice)
{
    cups_option_t *options = nullptr;
    const int count = cupsGetConflicts(ppd, keyword, choice, &options);
    QStringList keywords;
    keywords.reserve(count);
    for (int i = 0; i < count; ++i)
        keywords << QString::fromUtf8(options[i].name);
    cupsFreeOptions(count, options);
    return keywords;
}

bool isTrue(const QString &choice)
{
    return choice.compare(u"True", Qt::CaseInsensitive) == 0;
}

} // namespace

ConflictFinder::ConflictFinder(ppd_file_t *ppd) : m_ppd(ppd)
{
    for (int i = 0; ppd && i < ppd->num_groups; ++i) {
        const ppd_group_t &group = ppd->groups[i];
        for (int k = 0; qstrcmp(group.name, kInstallable) == 0 && k < group.num_options; ++k)
            m_builtIn.insert(QString::fromUtf8(group.options[k].keyword));
    }
}

bool ConflictFinder::hasConstraints() const
{
    return m_ppd && (m_ppd->num_consts > 0 || ppdFindAttr(m_ppd, "cupsUIConstraints", nullptr));
}

std::vector<Conflict> ConflictFinder::find(const Choices &choices, const QSet<QString> &fixed)
{
    std::vector<Conflict> found;
    if (!hasConstraints())
        return found;
    mark(choices);
    if (ppdConflicts(m_ppd) == 0)
        return found;
    std::vector<const ppd_option_t *> conflicted;
    for (const ppd_option_t *option = ppdFirstOption(m_ppd); option; option = ppdNextOption(m_ppd))
        if (option->conflicted && qstrcmp(option->keyword, kPageRegion) != 0)
            conflicted.push_back(option);
    std::set<std::pair<const ppd_option_t *, const ppd_option_t *>> pairs;
    for (const ppd_option_t *one : conflicted) {
        const ppd_choice_t *choice = ppdFindMarkedChoice(m_ppd, one->keyword);
        if (!choice)
            continue;
        for (const QString &keyword : conflictsOf(m_ppd, one->keyword, choice->choice)) {
            const ppd_option_t *other = ppdFindOption(m_ppd, keyword.toUtf8().constData());
            if (other && other != one && qstrcmp(other->keyword, kPageRegion) != 0 &&
                ppdFindMarkedChoice(m_ppd, other->keyword) && pairs.insert(std::minmax(one, other)).second)
                found.push_back(describe(*one, *other, fixed));
        }
    }
    return found;
}

void ConflictFinder::mark(const Choices &choices)
{
    ppdMarkDefaults(m_ppd);
    for (const auto &[keyword, choice] : choices) {
        const QByteArray option = keyword.toUtf8();
        const QByteArray wanted = choice.toUtf8();
        ppd_option_t *found = ppdFindOption(m_ppd, option.constData());
        if (found && ppdFindChoice(found, wanted.constData()))
            ppdMarkOption(m_ppd, option.constData(), wanted.constData());
    }
}

Conflict ConflictFinder::describe(const ppd_option_t &one, const ppd_option_t &other, const QSet<QString> &fixed)
{
    const ppd_choice_t &first = *ppdFindMarkedChoice(m_ppd, one.keyword);
    const ppd_choice_t &second = *ppdFindMarkedChoice(m_ppd, other.keyword);
    Conflict conflict;
    conflict.sides = {Conflict::Side{QString::fromUtf8(one.keyword), QString::fromUtf8(first.choice)},
                      Conflict::Side{QString::fromUtf8(other.keyword), QString::fromUtf8(second.choice)}};
    conflict.sentence = tr("%1 “%2” and %3 “%4” do not go together.", "options and choices")
                            .arg(title(one), choiceText(first), title(other), choiceText(second));
    for (const auto &[changed, left] : {std::pair(&one, &other), std::pair(&other, &one)}) {
        const QString keyword = QString::fromUtf8(changed->keyword);
        if (fixed.contains(keyword) || m_builtIn.contains(keyword))
            continue;
        for (Conflict::Way &way : waysOf(*changed, *left))
            conflict.ways.push_back(std::move(way));
    }
    return conflict;
}

// At most one way: the printer's default, or else the first choice that is in conflict with nothing, or at least not
// with the other option.
std::vector<Conflict::Way> ConflictFinder::waysOf(const ppd_option_t &changed, const ppd_option_t &other)
{
    const QString now = QString::fromUtf8(ppdFindMarkedChoice(m_ppd, changed.keyword)->choice);
    std::vector<const ppd_choice_t *> candidates;
    for (int i = 0; i < std::min(changed.num_choices, kMostTried); ++i) {
        const ppd_choice_t &choice = changed.choices[i];
        const QString keyword = QString::fromUtf8(choice.choice);
        // A custom choice would need its numbers.
        if (keyword == now || keyword == u"Custom")
            continue;
        candidates.insert(keyword == defaultChoice(changed) ? candidates.begin() : candidates.end(), &choice);
    }
    const ppd_choice_t *best = nullptr;
    for (const ppd_choice_t *candidate : candidates) {
        const QStringList conflicts = conflictsOf(m_ppd, changed.keyword, candidate->choice);
        if (conflicts.isEmpty()) {
            best = candidate;
            break;
        }
        if (!best && !conflicts.contains(QString::fromUtf8(other.keyword)))
            best = candidate;
    }
    if (!best)
        return {};
    const QString choice = QString::fromUtf8(best->choice);
    const QString words = changed.ui != PPD_UI_BOOLEAN ? tr("Change %1 to %2").arg(title(changed), choiceText(*best))
                          : isTrue(choice)             ? tr("Turn %1 on").arg(title(changed))
                                                       : tr("Turn %1 off").arg(title(changed));
    return {{QString::fromUtf8(changed.keyword), choice, words}};
}

QString ConflictFinder::title(const ppd_option_t &option) const
{
    const auto own = m_titles.find(QString::fromUtf8(option.keyword));
    return own == m_titles.end() ? optionText(option) : own->second;
}

std::map<QString, QString> conflictsByOption(const std::vector<Conflict> &conflicts)
{
    std::map<QString, QString> sentences;
    for (const Conflict &conflict : conflicts) {
        for (const Conflict::Side &side : conflict.sides) {
            QString &lines = sentences[side.keyword];
            lines += (lines.isEmpty() ? QString() : QStringLiteral("\n")) + conflict.sentence;
        }
    }
    return sentences;
}

} // namespace bv
