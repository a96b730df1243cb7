// SPDX-License-Identifier: GPL-2.0-or-later
// Brings the stored profile lists up to date: has the helper walk the session's printer.
#include "platform/ClassNames.h"

#include "common/PDECommon.h"
#include "discovery/DeviceAddress.h"
#include "discovery/WalkWords.h"
#include "platform/Log.h"
#include "platform/PanelWait.h"
#include "platform/RootPath.h"
#include "platform/UserName.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"
#include "profiles/ProfilePaths.h"
#include "profiles/RequestNames.h"

#include <charconv>
#include <sys/stat.h>

namespace {

constexpr int32_t kSwapToPrevious = 2;

// The arguments of the request: model, login name, and the words of the walk with the host filled in.
std::vector<std::string> walkRequest(const std::string &host)
{
    std::vector<std::string> words = {std::string(bv::kWalkModel), bv::loginName()};
    for (const std::string_view word : bv::kWalkWords)
        words.push_back(word == bv::kAnyHost ? host : std::string(word));
    return words;
}

// The status of the walk in the helper's answer; 0 when no number follows the mark. Nothing without a mark.
std::optional<int32_t> walkResult(const std::optional<std::string> &answer)
{
    const auto number = bv::behindMark(answer, bv::kWalkRequest, bv::kWalkMark);
    if (!number)
        return std::nullopt;
    int32_t result = 0;
    std::from_chars(number->data(), number->data() + number->size(), result);
    return result;
}

// The stored list; all zero when there is none.
struct stat storedList()
{
    struct stat about = {};
    return stat(bv::mapRootPath(bv::profilePaths().current).c_str(), &about) == 0 ? about : (struct stat){};
}

// A list that is written is always a new file.
bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_ino == other.st_ino && one.st_ctim.tv_sec == other.st_ctim.tv_sec &&
           one.st_ctim.tv_nsec == other.st_ctim.tv_nsec;
}

int32_t refreshed(const std::string &outcome, bv::LogSubject subject = bv::LogSubject::General)
{
    bv::diagnosticLine("Profile refresh: " + outcome, subject);
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
    bv::PanelWait *wait = bv::panelWait();
    if (wait && !wait->wantsDevice(*host))
        return refreshed("the dialog goes on without the printer");
    const struct stat before = storedList();
    // The status of the walk goes to the log only. Its result is the list file, which a failed walk updates too.
    const std::optional<int32_t> result = walkResult(bv::runHelper(bv::kWalkRequest, walkRequest(*host)));
    if (wait)
        wait->deviceAsked(*host, result == 0, before.st_mtime);
    if (!result)
        return refreshed("the helper gave no result");
    const std::string ended = "the walk ended with " + std::to_string(*result);
    return isSameFile(before, storedList())
               ? refreshed(ended + ", and the list was not written", bv::LogSubject::RefreshNotWritten)
               : refreshed(ended);
}
