// SPDX-License-Identifier: GPL-2.0-or-later
// Asks the helper about the list files, and has it remove and swap them.
#include "profiles/ProfileOperations.h"

#include "platform/NoThrow.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfilePaths.h"
#include "profiles/RequestNames.h"

#include <string>
#include <vector>

namespace {

int32_t ask(std::string_view request, const std::vector<std::string> &arguments)
{
    const auto answer = bv::runHelper(request, arguments);
    if (bv::answerIsTrue(answer, request))
        return 1;
    if (answer)
        bv::diagnosticLine(bv::formatLog("%@: the helper says no", {request}));
    return 0;
}

} // namespace

int32_t BVPListIsAdminProfile()
{
    return bv::withoutThrowing(0, [] { return ask(bv::kIsAdminRequest, {bv::profilePaths().current}); });
}

int32_t BVPListExistProfile()
{
    if (BVPListIsAdminProfile() == 0)
        return 0;
    return bv::withoutThrowing(0, [] { return ask(bv::kExistRequest, {bv::profilePaths().current}); });
}

int32_t BVPListRemove(int32_t which)
{
    if ((which != 3 && which != 2) || BVPListIsAdminProfile() == 0)
        return 0;
    return bv::withoutThrowing(0, [&] {
        const bv::ProfilePaths paths = bv::profilePaths();
        return ask(bv::kRemoveRequest, {which == 3 ? paths.current : paths.previous});
    });
}

void BVPListSwapProfile(int32_t code)
{
    if (BVPListIsAdminProfile() == 0)
        return;
    bv::withoutThrowing(0, [&] {
        const bv::ProfilePaths paths = bv::profilePaths();
        const std::vector<std::string> arguments = {std::to_string(code), paths.current, paths.previous};
        bv::runHelper(bv::kSwapRequest, arguments); // the answer does not matter: callers get no result
        return 0;
    });
}
