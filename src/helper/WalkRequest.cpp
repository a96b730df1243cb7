// The request to walk the printer's profile table.
#include "helper/WalkRequest.h"

#include "discovery/ProfileWalk.h"
#include "helper/Diagnostics.h"
#include "helper/DirectTransport.h"
#include "helper/PlistLibrary.h"
#include "helper/SnmpLibrary.h"
#include "profiles/ProfilePaths.h"

#include <array>
#include <cstdio>
#include <unistd.h>

namespace bv {

namespace {

constexpr size_t kWordsBegin = 2; // behind the model and the login name
constexpr size_t kHostWord = 6;
constexpr std::string_view kAnyHost; // stands in the table for the one word that may differ

constexpr std::string_view kModel = "QL70";
// clang-format off
constexpr std::array<std::string_view, 8> kWords = {
    "snmpwalk", "-Os", "-c", "mirror", "-v", "1", kAnyHost, "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1",
};
// clang-format on

bool isWalk(RequestArguments arguments)
{
    if (arguments[0] != kModel)
        return false;
    const RequestArguments words = arguments.subspan(kWordsBegin);
    for (size_t i = 0; i < kWords.size(); ++i) {
        if (i != kHostWord && words[i] != kWords[i])
            return false;
    }
    return !words[kHostWord].empty() && !words[kHostWord].starts_with('-');
}

} // namespace

Outcome answerWalk(const Caller &caller, RequestArguments arguments)
{
    if (!isWalk(arguments)) {
        complain("those are not the words of a walk");
        return unknownRequest();
    }
    const auto target = caller.listOfLogin(arguments[1]);
    if (!target) {
        complain("the caller may not walk for that login name");
        return outcomeOf(false);
    }

    if (!loadSnmpLibrary() || !loadPlistLibrary())
        return outcomeOf(false);

    setProfileLogin(target->login);
    // The pieces that the walk writes are its own sequence and not its parent's.
    DirectTransport transport{Caller(getpid())};
    HelperTransport *before = setHelperTransport(&transport);

    std::array<std::string, kWords.size()> words;
    std::array<char *, kWords.size() + 1> vector = {};
    for (size_t i = 0; i < words.size(); ++i) {
        words[i] = arguments[kWordsBegin + i];
        vector[i] = words[i].data();
    }
    const int32_t status = mib_walk(static_cast<int32_t>(words.size()), vector.data());

    setHelperTransport(before);
    // What the walk printed stands before the verdict.
    std::fflush(stdout);
    return {"iRet=" + std::to_string(status), kExitDone};
}

} // namespace bv
