// SPDX-License-Identifier: GPL-2.0-or-later
// All options of a queue as they stand: choices, what is chosen, where that comes from, and what cannot be chosen.
#pragma once

#include "commandline/RoomStart.h"
#include "commandline/WantedChoices.h"

#include <QSet>

namespace bv {

struct ListedChoice
{
    QString choice; // what -o takes
    QString text;   // for people
};

struct ListedOption
{
    QString group; // for people
    QString keyword;
    QString text; // for people
    QString choice;
    QString usual;  // the printer's default, a keyword
    QString origin; // a word for programs, the same in every language; see docs/command-line.md
    QString from;   // the same as a sentence; may be empty
    QString greyed; // why it cannot be chosen now: a sentence; empty: it can
    std::vector<ListedChoice> choices;
};

// `given` are the keywords of the options that the command line chose.
std::vector<ListedOption> listOptions(const StartedRoom &started, const QSet<QString> &given);

} // namespace bv
