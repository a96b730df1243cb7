// SPDX-License-Identifier: GPL-2.0-or-later
// The options of a command line, as choices of a printer.
#pragma once

#include "jobs/JobSink.h"
#include "options/PaneOptions.h"
#include "platform/PrintValue.h"

#include <QStringList>
#include <cups/ppd.h>
#include <vector>

namespace bv {

// A choice for one option. Keywords are spelled as in the PPD.
struct WantedChoice
{
    QString keyword;
    QString choice;          // a keyword; empty where the user wants something else than a choice of the PPD:
    QString item;            // the title of an item that the option's control has beside them (a profile), or
    PrintDictionary entries; // what a ticket says of it (OPTIONCustom …)

    // "KEYWORD=CHOICE", as people write it.
    QString word() const;
};

struct WantedChoices
{
    std::vector<WantedChoice> choices; // one for an option, in the PPD's order
    JobOptions attributes;             // of the job itself; they are sent as they are
};

// An option and its value. `options` are words of -o, each "KEYWORD=CHOICE", or several with blanks between, or the
// name of one that is turned on ("fit-to-page") or off ("nofit-to-page"), as lp(1) takes them.
using OptionWords = std::vector<std::pair<QString, QString>>;
Result<OptionWords> splitOptions(const QStringList &options);

// What these words choose; of several for one option the last counts. Standard options (media, sides …) become the
// PPD's choices that they stand for. `pane` tells which controls there are. The sentence of a failure names what the
// printer has instead. Changes the PPD's marks and marks its defaults.
Result<WantedChoices> wantedChoices(const OptionWords &words, ppd_file_t *ppd,
                                    const std::map<QString, PaneOption> &pane);

// The options of a PPD that a job can choose, in the order of its groups: not what is built into the printer, and not
// PageRegion, which follows PageSize.
struct GroupedOption
{
    ppd_option_t *option;
    const ppd_group_t *group;
};
std::vector<GroupedOption> jobChoices(ppd_file_t *ppd);

// The titles of the items that a control has beside the option's choices.
QStringList itemsBeside(const ppd_option_t &option, const QWidget *control);

} // namespace bv
