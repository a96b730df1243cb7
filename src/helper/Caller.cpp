// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the list that a path, URL or login name stands for.
#include "helper/Caller.h"

#include "platform/FileDescriptor.h"
#include "platform/FileUrl.h"
#include "platform/Percent.h"
#include "platform/UserName.h"
#include "profiles/ProfilePaths.h"

#include <charconv>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr std::string_view kUrlBegin = "file://";
constexpr std::string_view kMarkLogin = "x"; // placeholder that shows what comes before and after the login name
constexpr size_t kStartTimeField = 22;       // in /proc/PID/stat, counted from 1

std::string fileName(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

// Extracts the login name from a path. Empty when the path does not have the form of profilePathsFor. May return too
// much: the caller compares the path of the returned name with the whole text.
std::string_view loginInPath(std::string_view path, std::string ProfilePaths::*which)
{
    const std::string model = profilePathsFor(kMarkLogin).*which;
    const size_t folder = model.rfind('/') + 1;
    const std::string_view suffix = std::string_view(model).substr(folder + kMarkLogin.size());
    if (path.size() <= folder + suffix.size() || !path.starts_with(std::string_view(model).substr(0, folder)) ||
        !path.ends_with(suffix))
        return {};
    return path.substr(folder, path.size() - folder - suffix.size());
}

ListTarget targetOf(std::string login, uid_t user)
{
    ProfilePaths paths = profilePathsFor(login);
    return {std::move(login), user, std::move(paths.current), std::move(paths.previous)};
}

} // namespace

std::optional<ProcessIdentity> identifyProcess(pid_t id)
{
    if (id <= 0)
        return std::nullopt;
    const std::string path = "/proc/" + std::to_string(id) + "/stat";
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string stat;
    if (!file || !readToEnd(file.get(), &stat))
        return std::nullopt;
    // The second field is the program's name in parentheses. It may hold anything, so fields are counted after its end.
    std::string_view rest(stat);
    const size_t name = rest.rfind(')');
    if (name == std::string_view::npos)
        return std::nullopt;
    rest.remove_prefix(name + 1);
    for (size_t field = 3; field <= kStartTimeField; ++field) {
        const size_t blank = rest.find(' ');
        if (blank == std::string_view::npos)
            return std::nullopt;
        rest.remove_prefix(blank + 1);
    }
    ProcessIdentity identity{id, 0};
    if (std::from_chars(rest.data(), rest.data() + rest.size(), identity.startTime).ec != std::errc())
        return std::nullopt;
    return identity;
}

std::string ListTarget::currentName() const
{
    return fileName(currentPath);
}

std::string ListTarget::previousName() const
{
    return fileName(previousPath);
}

std::string ListTarget::unreadableName() const
{
    constexpr std::string_view kEnding = ".plist";
    std::string name = currentName();
    return name.insert(name.size() - kEnding.size(), ".unreadable");
}

Caller::Caller(pid_t sequenceProcess) : m_user(getuid()), m_sequenceProcess(sequenceProcess) {}

std::optional<ListTarget> Caller::ownList() const
{
    std::string login = loginName();
    if (login.empty() || login.find('/') != std::string::npos)
        return std::nullopt;
    return targetOf(std::move(login), m_user);
}

std::optional<ListTarget> Caller::listOfLogin(std::string_view login) const
{
    if (!isRoot()) {
        auto own = ownList();
        return own && own->login == login ? own : std::nullopt;
    }
    if (login.empty() || login.find('/') != std::string_view::npos)
        return std::nullopt;
    // Some databases ignore case. Only the exact name counts here.
    const passwd *entry = getpwnam(std::string(login).c_str());
    if (!entry || !entry->pw_name || login != entry->pw_name)
        return std::nullopt;
    return targetOf(std::string(login), entry->pw_uid);
}

std::optional<ListTarget> Caller::listOfCurrentPath(std::string_view path) const
{
    auto target = isRoot() ? listOfLogin(loginInPath(path, &ProfilePaths::current)) : ownList();
    return target && target->currentPath == path ? target : std::nullopt;
}

std::optional<ListTarget> Caller::listOfPreviousPath(std::string_view path) const
{
    auto target = isRoot() ? listOfLogin(loginInPath(path, &ProfilePaths::previous)) : ownList();
    return target && target->previousPath == path ? target : std::nullopt;
}

std::optional<ListTarget> Caller::listOfUrl(std::string_view url) const
{
    if (!url.starts_with(kUrlBegin))
        return std::nullopt;
    const auto path = percentDecoded(url.substr(kUrlBegin.size()));
    auto target = path ? listOfCurrentPath(*path) : std::nullopt;
    return target && fileUrl(target->currentPath) == url ? target : std::nullopt;
}

bool Caller::acceptsOwner(uid_t owner, const ListTarget &target) const
{
    return owner == m_user || (isRoot() && owner == target.user);
}

} // namespace bv
