// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the constraints and tells which of them hold.
#include "options/PpdConstraints.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace bv {

namespace {

bool isSame(const QString &one, QStringView other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool isOff(const QString &choice)
{
    static constexpr std::array<QStringView, 3> kOff = {u"None", u"Off", u"False"};
    return choice.isEmpty() ||
           std::any_of(kOff.begin(), kOff.end(), [&choice](QStringView off) { return isSame(choice, off); });
}

bool holds(const PpdConstraint::Part &part, const QString &choice)
{
    if (part.choice.isEmpty())
        return !isOff(choice);
    const bool isCustom = isSame(part.choice, u"Custom") && choice.startsWith(u"Custom.", Qt::CaseInsensitive);
    return isCustom || isSame(part.choice, choice);
}

} // namespace

PpdConstraints::PpdConstraints(ppd_file_t *ppd)
{
    if (!ppd)
        return;
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        addFromText(ppd, QString::fromUtf8(attribute->value));
    for (const ppd_const_t &rule : std::span(ppd->consts, size_t(ppd->num_consts)))
        add(ppd, {{QString::fromUtf8(rule.option1), QString::fromUtf8(rule.choice1)},
                  {QString::fromUtf8(rule.option2), QString::fromUtf8(rule.choice2)}});
    for (const PpdConstraint &constraint : m_all)
        for (const PpdConstraint::Part &part : constraint.parts)
            m_byOption[part.option].push_back(&constraint);
}

// "*PageSize A6 *Duplex *MediaType Film"
void PpdConstraints::addFromText(ppd_file_t *ppd, const QString &text)
{
    std::vector<std::pair<QString, QString>> parts;
    for (const QString &word : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (word.startsWith(u'*'))
            parts.emplace_back(word.mid(1), QString());
        else if (!parts.empty())
            parts.back().second = word;
    }
    add(ppd, parts);
}

void PpdConstraints::add(ppd_file_t *ppd, const std::vector<std::pair<QString, QString>> &parts)
{
    PpdConstraint constraint;
    for (const auto &[keyword, choice] : parts) {
        const QByteArray name = isSame(keyword, u"PageRegion") ? QByteArrayLiteral("PageSize") : keyword.toUtf8();
        const ppd_option_t *option = ppdFindOption(ppd, name.constData());
        const auto isOption = [option](const PpdConstraint::Part &part) { return part.option == option; };
        // A rule about an option that is not there cannot be broken; one about the same option twice is none.
        if (!option || std::any_of(constraint.parts.begin(), constraint.parts.end(), isOption))
            return;
        constraint.parts.push_back({option, choice});
    }
    if (constraint.parts.size() >= 2)
        m_all.push_back(std::move(constraint));
}

bool PpdConstraints::isBroken(const PpdConstraint &constraint, const ChoiceOf &choiceOf)
{
    return std::all_of(constraint.parts.begin(), constraint.parts.end(),
                       [&choiceOf](const PpdConstraint::Part &part) { return holds(part, choiceOf(*part.option)); });
}

std::vector<const PpdConstraint *> PpdConstraints::broken(const ChoiceOf &choiceOf) const
{
    std::vector<const PpdConstraint *> found;
    std::set<std::set<const ppd_option_t *>> known;  // PPDs state their rules from both sides
    std::map<const ppd_option_t *, QString> choices; // each is asked for once, however many rules name its option
    const auto asked = [&choices, &choiceOf](const ppd_option_t &option) {
        const auto [entry, isNew] = choices.try_emplace(&option);
        if (isNew)
            entry->second = choiceOf(option);
        return entry->second;
    };
    for (const PpdConstraint &constraint : m_all) {
        if (!isBroken(constraint, asked))
            continue;
        std::set<const ppd_option_t *> options;
        for (const PpdConstraint::Part &part : constraint.parts)
            options.insert(part.option);
        if (known.insert(std::move(options)).second)
            found.push_back(&constraint);
    }
    return found;
}

std::span<const PpdConstraint *const> PpdConstraints::naming(const ppd_option_t &option) const
{
    const auto found = m_byOption.find(&option);
    return found == m_byOption.end() ? std::span<const PpdConstraint *const>() : found->second;
}

} // namespace bv
