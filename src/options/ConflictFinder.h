// SPDX-License-Identifier: GPL-2.0-or-later
// Choices of the PPD's options that do not go together, and how to settle it.
#pragma once

#include "options/PpdConstraints.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <cups/ppd.h>
#include <map>
#include <vector>

namespace bv {

// Choices that the PPD's constraints rule out together. Keywords are the PPD's, all texts are for the user.
struct Conflict
{
    struct Side
    {
        QString keyword;
        QString choice;
    };
    // A choice that settles it.
    struct Way
    {
        QString keyword;
        QString choice;
        QString words; // "Change Resolution to 600 dpi"
    };

    std::vector<Side> sides; // two, or more where the PPD names more
    QString sentence;        // "Resolution “1200 dpi” and Economy Print “On” do not go together."
    std::vector<Way> ways;
};

class ConflictFinder final
{
    Q_DECLARE_TR_FUNCTIONS(ConflictFinder)

public:
    using Choices = std::map<QString, QString>; // keywords

    // The PPD is borrowed and may be null.
    explicit ConflictFinder(ppd_file_t *ppd);

    // Whether the PPD has any constraints.
    bool hasConstraints() const { return !m_constraints.isEmpty(); }
    // The name of an option that the window calls otherwise than the PPD does.
    void setTitle(const QString &keyword, const QString &title) { m_titles[keyword] = title; }

    // All conflicts between these choices, each set of options once. Options without an entry have their default
    // choices. No way changes an option in `fixed`, or what is built into the printer.
    std::vector<Conflict> find(const Choices &choices, const QSet<QString> &fixed = {}) const;

private:
    Conflict describe(const PpdConstraint &broken, const PpdConstraints::ChoiceOf &choiceOf,
                      const QSet<QString> &fixed) const;
    const ppd_choice_t *choiceToSettle(const PpdConstraint &broken, const ppd_option_t &changed,
                                       const PpdConstraints::ChoiceOf &choiceOf) const;
    Conflict::Way wayTo(const ppd_option_t &changed, const ppd_choice_t &choice) const;
    QString title(const ppd_option_t &option) const;

    PpdConstraints m_constraints;
    QSet<QString> m_builtIn;
    std::map<QString, QString> m_titles;
};

// What is wrong with each option: the sentences of its conflicts by keyword, one a line.
std::map<QString, QString> conflictsByOption(const std::vector<Conflict> &conflicts);

} // namespace bv
