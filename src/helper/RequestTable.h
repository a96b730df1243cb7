// SPDX-License-Identifier: GPL-2.0-or-later
// The table of the helper's requests, and how a request is answered.
#pragma once

#include "helper/Caller.h"

#include <span>
#include <string>
#include <string_view>

namespace bv {

// The result of a request: the text after "NAME=" and the exit status of the process.
struct Outcome
{
    std::string verdict;
    int exitStatus;
};

inline constexpr int kExitDone = 0;    // TRUE, or a walk that ran
inline constexpr int kExitRefused = 1; // FALSE
inline constexpr int kExitUnknown = 2; // no request of that name and number of arguments

// TRUE or FALSE, with the matching exit status.
Outcome outcomeOf(bool done);
// FALSE, for a request that does not exist.
Outcome unknownRequest();

using RequestArguments = std::span<const std::string_view>;

// Looks the request up in the table and runs it. An unknown name or a wrong number of arguments is refused before
// anything is changed.
Outcome answerRequest(std::string_view name, RequestArguments arguments, const Caller &caller);

// The answer line "NAME=VERDICT" with a line end. Replaces control characters in the name, so that an unknown name
// cannot add a second line.
std::string answerLine(std::string_view name, const Outcome &outcome);

} // namespace bv
