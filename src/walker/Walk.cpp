// SPDX-License-Identifier: GPL-2.0-or-later
// Runs a walk request.
#include "walker/Walk.h"

#include "discovery/ProfileWalk.h"
#include "discovery/WalkWords.h"
#include "helper/Diagnostics.h"
#include "helper/WalkRequest.h"
#include "profiles/ProfilePaths.h"
#include "profiles/RequestNames.h"
#include "walker/DirectTransport.h"

#include <array>
#include <cstdio>

namespace bv {

Outcome runWalk(std::string_view name, RequestArguments arguments, const Caller &caller)
{
    if (name != kWalkRequest) {
        complain("no such request");
        return unknownRequest();
    }
    if (const auto refusal = walkRefusal(caller, arguments))
        return *refusal;

    setProfileLogin(arguments[1]);
    DirectTransport transport(caller);
    HelperTransport *before = setHelperTransport(&transport);

    std::array<std::string, kWalkWords.size()> words;
    std::array<char *, kWalkWords.size() + 1> vector = {};
    for (size_t i = 0; i < words.size(); ++i) {
        words[i] = arguments[kWalkWordsBegin + i];
        vector[i] = words[i].data();
    }
    const int32_t status = mib_walk(static_cast<int32_t>(words.size()), vector.data());

    setHelperTransport(before);
    // The output of the walk must come before the verdict.
    std::fflush(stdout);
    return {std::string(kWalkMark) + std::to_string(status), kExitDone};
}

} // namespace bv
