// SPDX-License-Identifier: GPL-2.0-or-later
// The table of requests.
#include "helper/RequestTable.h"

#include "discovery/WalkWords.h"
#include "helper/Diagnostics.h"
#include "helper/ListRequests.h"
#include "helper/WalkRequest.h"
#include "profiles/RequestNames.h"

#include <algorithm>

namespace bv {

namespace {

struct RequestRow
{
    std::string_view name;
    size_t arguments;
    Outcome (*answer)(const Caller &caller, RequestArguments arguments);
};

// clang-format off
constexpr RequestRow kRequests[] = {
    {kIsAdminRequest,              1, answerIsAdmin},
    {kExistRequest,                1, answerExist},
    {kRemoveRequest,               1, answerRemove},
    {kSwapRequest,                 3, answerSwap},
    {kPieceRequest,                2, answerPiece},
    {kCommitRequest,               1, answerCommit},
    {kWalkRequest,    kWalkArguments, answerWalk},
};
// clang-format on

} // namespace

Outcome outcomeOf(bool done)
{
    return done ? Outcome{std::string(kTrueMark), kExitDone} : Outcome{std::string(kFalseMark), kExitRefused};
}

Outcome unknownRequest()
{
    return {std::string(kFalseMark), kExitUnknown};
}

Outcome answerRequest(std::string_view name, RequestArguments arguments, const Caller &caller)
{
    const auto *row = std::find_if(std::begin(kRequests), std::end(kRequests),
                                   [&](const RequestRow &request) { return request.name == name; });
    if (row == std::end(kRequests)) {
        complain("no such request");
        return unknownRequest();
    }
    if (row->arguments != arguments.size()) {
        complain("wrong number of arguments");
        return unknownRequest();
    }
    return row->answer(caller, arguments);
}

std::string answerLine(std::string_view name, const Outcome &outcome)
{
    std::string line(name);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, '?');
    return line.append("=").append(outcome.verdict).append("\n");
}

} // namespace bv
