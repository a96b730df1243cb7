// SPDX-License-Identifier: GPL-2.0-or-later
// The choices that a PPD rules out together.
#pragma once

#include <QString>
#include <cups/ppd.h>
#include <functional>
#include <map>
#include <span>
#include <vector>

namespace bv {

// One rule: not all of its parts may hold at the same time.
struct PpdConstraint
{
    struct Part
    {
        const ppd_option_t *option; // of the PPD
        QString choice;             // a keyword; empty: any choice that switches the option on
    };

    std::vector<Part> parts; // two or more, of different options
};

// Read from the PPD itself: libcups' search answers which options are in some conflict, not which ones belong together.
// The rules are those of libcups: UIConstraints and cupsUIConstraints both count, keywords are compared without regard
// to case, and PageRegion is another name of PageSize. See the CUPS PPD extensions, "cupsUIConstraints", and Adobe
// Technical Note 5003, "UIConstraints".
class PpdConstraints final
{
public:
    // The choice of an option, in keywords; empty where it has none.
    using ChoiceOf = std::function<QString(const ppd_option_t &)>;

    // The PPD is borrowed and may be null.
    explicit PpdConstraints(ppd_file_t *ppd);

    bool isEmpty() const { return m_all.empty(); }
    // Rules that these choices break, each set of options once.
    std::vector<const PpdConstraint *> broken(const ChoiceOf &choiceOf) const;
    // The rules that name the option.
    std::span<const PpdConstraint *const> naming(const ppd_option_t &option) const;

    static bool isBroken(const PpdConstraint &constraint, const ChoiceOf &choiceOf);

private:
    void add(ppd_file_t *ppd, const std::vector<std::pair<QString, QString>> &parts);
    void addFromText(ppd_file_t *ppd, const QString &text);

    std::vector<PpdConstraint> m_all;
    std::map<const ppd_option_t *, std::vector<const PpdConstraint *>> m_byOption;
};

} // namespace bv
