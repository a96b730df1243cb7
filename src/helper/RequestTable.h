// The requests that the helper knows, and how one is answered.
#pragma once

#include "helper/Caller.h"

#include <span>
#include <string>
#include <string_view>

namespace bv {

// What one request comes to: the text behind "NAME=" and the exit status of the process.
struct Outcome
{
    std::string verdict;
    int exitStatus;
};

inline constexpr int kExitDone = 0;    // TRUE, and a walk that ran
inline constexpr int kExitRefused = 1; // FALSE
inline constexpr int kExitUnknown = 2; // no request of that name and number of arguments

// TRUE or FALSE with its exit status.
Outcome outcomeOf(bool done);
// FALSE for what is no request at all.
Outcome unknownRequest();

using RequestArguments = std::span<const std::string_view>;

// Finds the request in the table and carries it out; what is not there, or has another number of arguments, is refused
// before anything is touched.
Outcome answerRequest(std::string_view name, RequestArguments arguments, const Caller &caller);

// The line that answers a request: "NAME=VERDICT" and a line end. Control characters in the name are replaced, so that
// a name that is no request cannot make a second line.
std::string answerLine(std::string_view name, const Outcome &outcome);

} // namespace bv
