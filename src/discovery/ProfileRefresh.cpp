// Brings the stored profile list up to date: has the helper walk the printer that the session prints to.
#include "platform/ClassNames.h"

#include "common/PDECommon.h"
#include "discovery/DeviceAddress.h"
#include "platform/Log.h"
#include "platform/UserName.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"

#include <charconv>

namespace {

constexpr std::string_view kRequest = "mibwalk_XPC";
constexpr std::string_view kResultMark = "mibwalk_XPC=iRet=";
constexpr int32_t kSwapToPrevious = 2;

// The request's words: model, login name, and the walk's own words from its program name to the table's entry.
std::vector<std::string> walkRequest(const std::string &host)
{
    return {"QL70",     bv::loginName(),
            "snmpwalk", "-Os",
            "-c",       "mirror",
            "-v",       "1",
            host,       "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1"};
}

// The walk's result in the helper's answer, 0 when no number stands behind the mark; nothing without a mark.
std::optional<int32_t> walkResult(const std::optional<std::string> &answer)
{
    const size_t mark = answer ? answer->find(kResultMark) : std::string::npos;
    if (mark == std::string::npos)
        return std::nullopt;
    int32_t result = 0;
    std::from_chars(answer->data() + mark + kResultMark.size(), answer->data() + answer->size(), result);
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
    const std::optional<int32_t> result = walkResult(bv::runHelper(kRequest, walkRequest(*host)));
    return refreshed(result ? "the walk ended with " + std::to_string(*result) : "the helper gave no result");
}
