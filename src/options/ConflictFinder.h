// SPDX-License-Identifier: GPL-2.0-or-later
// Choices of the PPD's options that do not go together, and how to settle it.
#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <array>
#include <cups/ppd.h>
#include <map>
#include <vector>

namespace bv {

// A pair of choices that the PPD's constraints rule out. Keywords are the PPD's, all texts are for the user.
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

    std::array<Side, 2> sides;
    QString sentence; // "Resolution “1200 dpi” and Economy Print “On” do not go together."
    std::vector<Way> ways;
};

class ConflictFinder final
{
    Q_DECLARE_TR_FUNCTIONS(ConflictFinder)

public:
    using Choices = std::map<QString, QString>; // keywords

    // The PPD is borrowed and may be null. Searches mark choices in it, so no panel may use the same PPD.
    explicit ConflictFinder(ppd_file_t *ppd);

    // Whether the PPD has any constraints.
    bool hasConstraints() const;
    // The name of an option that the window calls otherwise than the PPD does.
    void setTitle(const QString &keyword, const QString &title) { m_titles[keyword] = title; }

    // All conflicts between these choices, each pair once. Options without an entry have their default choices. No way
    // changes an option in `fixed`, or what is built into the printer.
    std::vector<Conflict> find(const Choices &choices, const QSet<QString> &fixed = {});

private:
    void mark(const Choices &choices);
    Conflict describe(const ppd_option_t &one, const ppd_option_t &other, const QSet<QString> &fixed);
    std::vector<Conflict::Way> waysOf(const ppd_option_t &changed, const ppd_option_t &other);
    QString title(const ppd_option_t &option) const;

    ppd_file_t *m_ppd;
    QSet<QString> m_builtIn;
    std::map<QString, QString> m_titles;
};

// What is wrong with each option: the sentences of its conflicts by keyword, one a line.
std::map<QString, QString> conflictsByOption(const std::vector<Conflict> &conflicts);

} // namespace bv
