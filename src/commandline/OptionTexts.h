// SPDX-License-Identifier: GPL-2.0-or-later
// Options and summary as text for people and as JSON for programs. Words for -o stand first in a line, so that the
// columns are straight in every script.
#pragma once

#include "commandline/ChoiceMaking.h"
#include "commandline/OptionTable.h"

#include <QJsonArray>
#include <QJsonObject>

namespace bv {

QString optionText(const std::vector<ListedOption> &options);
QJsonArray optionJson(const std::vector<ListedOption> &options);

// What of the options and of the panel's summary the window's summary shows, first what is not as the printer proposes.
QString summaryText(const std::vector<SummaryEntry> &rows, const std::vector<ListedOption> &options,
                    const JobOptions &attributes);
QJsonArray summaryJson(const std::vector<SummaryEntry> &rows, const std::vector<ListedOption> &options);

QJsonObject optionsJson(const JobOptions &options);
QJsonArray refusalJson(const std::vector<Refusal> &refusals);

} // namespace bv
