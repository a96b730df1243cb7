// Brings the stored profile list up to date: has the helper walk the printer that the session prints to.
#include "platform/ClassNames.h"

#include "common/PDECommon.h"
#include "discovery/DeviceAddress.h"
#include "discovery/WalkWords.h"
#include "platform/Log.h"
#include "platform/UserName.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"
#include "profiles/RequestNames.h"

#include <charconv>

namespace {

constexpr int32_t kSwapToPrevious = 2;

// The request's words: model, login name, and the walk's own words from its program name to the table's entry.
std::vector<std::string> walkRequest(const std::string &host)
{
    std::vector<std::string> words = {std::string(bv::kWalkModel), bv::loginName()};
    for (const std::string_view word : bv::kWalkWords)
        words.push_back(word == bv::kAnyHost ? host : std::string(word));
    return words;
}

// The walk's result in the helper's answer, 0 when no number stands behind the mark; nothing without a mark.
std::optional<int32_t> walkResult(const std::optional<std::string> &answer)
{
    const auto number = bv::behindMark(answer, bv::kWalkRequest, bv::kWalkMark);
    if (!number)
        return std::nullopt;
    int32_t result = 0;
    std::from_chars(number->data(), number->data() + number->size(), result);
    return result;
}

int32_t refreshed(const std::string &outcome)
{
    bv::diagnosticLine("Profile refresh: " + outcome);
    return 0;
}

} // namespace

int32_t PDECommon::commonGetProfilesFromMIB(PMPrintSession session)
{
    BVPListSwapProfile(kSwapToPrevious);
    const std::optional<std::string> host = bv::walkHost(session);
    if (!host)
        return 0; // the reason is in the log
    if (!bv::helperAvailable())
        return refreshed("no helper");
    // Nobody is told how the walk went: the list file is the result, and a failed walk has done its work on it too.
    const std::optional<int32_t> result = walkResult(bv::runHelper(bv::kWalkRequest, walkRequest(*host)));
    return refreshed(result ? "the walk ended with " + std::to_string(*result) : "the helper gave no result");
}
