// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the PPD's rules that choices break, and tries choices that keep them.
#include "options/ConflictFinder.h"

#include "options/OptionMenu.h"
#include "options/PpdWords.h"

#include <QStringList>
#include <algorithm>

namespace bv {

namespace {

constexpr char kInstallable[] = "InstallableOptions";
// An option may have thousands of choices; one of the first settles a conflict or none does.
constexpr int kMostTried = 100;

bool isTrue(const QString &choice)
{
    return choice.compare(u"True", Qt::CaseInsensitive) == 0;
}

const ppd_choice_t *choiceNamed(const ppd_option_t &option, const QString &keyword)
{
    // libcups takes no constant option, and changes nothing; it knows "Custom.…" as the choice "Custom".
    return ppdFindChoice(const_cast<ppd_option_t *>(&option), keyword.toUtf8().constData());
}

} // namespace

ConflictFinder::ConflictFinder(ppd_file_t *ppd) : m_constraints(ppd)
{
    for (int i = 0; ppd && i < ppd->num_groups; ++i) {
        const ppd_group_t &group = ppd->groups[i];
        for (int k = 0; qstrcmp(group.name, kInstallable) == 0 && k < group.num_options; ++k)
            m_builtIn.insert(QString::fromUtf8(group.options[k].keyword));
    }
}

std::vector<Conflict> ConflictFinder::find(const Choices &choices, const QSet<QString> &fixed) const
{
    const auto choiceOf = [&choices](const ppd_option_t &option) {
        const auto chosen = choices.find(QString::fromUtf8(option.keyword));
        // What the PPD does not know counts as not chosen.
        const bool isKnown = chosen != choices.end() && choiceNamed(option, chosen->second);
        return isKnown ? chosen->second : QString::fromUtf8(option.defchoice);
    };
    std::vector<Conflict> found;
    for (const PpdConstraint *broken : m_constraints.broken(choiceOf))
        found.push_back(describe(*broken, choiceOf, fixed));
    return found;
}

Conflict ConflictFinder::describe(const PpdConstraint &broken, const PpdConstraints::ChoiceOf &choiceOf,
                                  const QSet<QString> &fixed) const
{
    Conflict conflict;
    QStringList sides;
    for (const PpdConstraint::Part &part : broken.parts) {
        const QString keyword = QString::fromUtf8(part.option->keyword);
        const QString choice = choiceOf(*part.option);
        const ppd_choice_t *known = choiceNamed(*part.option, choice);
        conflict.sides.push_back({keyword, choice});
        sides << tr("%1 “%2”", "option and choice").arg(title(*part.option), known ? choiceText(*known) : choice);
        if (fixed.contains(keyword) || m_builtIn.contains(keyword))
            continue;
        if (const ppd_choice_t *better = choiceToSettle(broken, *part.option, choiceOf))
            conflict.ways.push_back(wayTo(*part.option, *better));
    }
    const QString last = sides.takeLast();
    conflict.sentence =
        tr("%1 and %2 do not go together.", "options and choices").arg(sides.join(tr(", ", "between options")), last);
    return conflict;
}

// The printer's default, or else the first choice, that breaks no rule, or at least not this one. Null: there is none.
const ppd_choice_t *ConflictFinder::choiceToSettle(const PpdConstraint &broken, const ppd_option_t &changed,
                                                   const PpdConstraints::ChoiceOf &choiceOf) const
{
    std::vector<const ppd_choice_t *> candidates;
    for (const ppd_choice_t &choice : std::span(changed.choices, size_t(std::min(changed.num_choices, kMostTried)))) {
        // A custom choice would need its numbers.
        if (qstricmp(choice.choice, "Custom") != 0)
            candidates.insert(qstricmp(choice.choice, changed.defchoice) == 0 ? candidates.begin() : candidates.end(),
                              &choice);
    }
    const ppd_choice_t *best = nullptr;
    for (const ppd_choice_t *candidate : candidates) {
        const auto tried = [&changed, &choiceOf, candidate](const ppd_option_t &option) {
            return &option == &changed ? QString::fromUtf8(candidate->choice) : choiceOf(option);
        };
        if (PpdConstraints::isBroken(broken, tried))
            continue;
        const std::span<const PpdConstraint *const> rules = m_constraints.naming(changed);
        if (std::none_of(rules.begin(), rules.end(),
                         [&tried](const PpdConstraint *rule) { return PpdConstraints::isBroken(*rule, tried); }))
            return candidate;
        if (!best)
            best = candidate;
    }
    return best;
}

Conflict::Way ConflictFinder::wayTo(const ppd_option_t &changed, const ppd_choice_t &choice) const
{
    const QString keyword = QString::fromUtf8(choice.choice);
    const QString words = changed.ui != PPD_UI_BOOLEAN ? tr("Change %1 to %2").arg(title(changed), choiceText(choice))
                          : isTrue(keyword)            ? tr("Turn %1 on").arg(title(changed))
                                                       : tr("Turn %1 off").arg(title(changed));
    return {QString::fromUtf8(changed.keyword), keyword, words};
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
