// The requests that the helper knows, and how one is answered.
#include "helper/RequestTable.h"

#include "helper/Diagnostics.h"
#include "helper/ListRequests.h"
#include "helper/WalkRequest.h"

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
    {"bvPListIsAdminProfile_XPC",       1, answerIsAdmin},
    {"bvPListExistProfile_XPC",         1, answerExist},
    {"bvPListRemove_XPC",               1, answerRemove},
    {"bvPListSwapProfile_XPC",          3, answerSwap},
    {"writeDataToPlistFile_XPC",        2, answerPiece},
    {"writeDataToPlistFileRename_XPC",  1, answerCommit},
    {kWalkRequest,                     10, answerWalk},
};
// clang-format on

} // namespace

Outcome outcomeOf(bool done)
{
    return done ? Outcome{"TRUE", kExitDone} : Outcome{"FALSE", kExitRefused};
}

Outcome unknownRequest()
{
    return {"FALSE", kExitUnknown};
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
