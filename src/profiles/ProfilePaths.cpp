// SPDX-License-Identifier: GPL-2.0-or-later
// Forms the names of the list files from the login name.
#include "profiles/ProfilePaths.h"

#include "platform/UserName.h"

namespace bv {

namespace {

constexpr std::string_view kCurrentEnd = "-QL70-profile.plist";
constexpr std::string_view kPreviousEnd = "-QL70-profile.prev.plist";

std::string &chosenLogin()
{
    static std::string login;
    return login;
}

std::string pathFor(std::string_view login, std::string_view end)
{
    std::string path = kProfileFolder;
    path.append("/").append(login).append(end);
    if (path.size() >= kProfilePathBytes)
        path.resize(kProfilePathBytes - 1);
    return path;
}

} // namespace

ProfilePaths profilePathsFor(std::string_view login)
{
    if (login.empty())
        return {};
    return {pathFor(login, kCurrentEnd), pathFor(login, kPreviousEnd)};
}

ProfilePaths profilePaths()
{
    return profilePathsFor(chosenLogin().empty() ? loginName() : chosenLogin());
}

void setProfileLogin(std::string_view login)
{
    chosenLogin() = login;
}

} // namespace bv
