// Who asks, and whose list a path, a URL or a login name of the request stands for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace bv {

// One process, told apart from a later one with the same id by its start time.
struct ProcessIdentity
{
    pid_t id = 0;
    uint64_t startTime = 0; // clock ticks since the machine started, see proc(5), /proc/PID/stat
};

// The identity of a running process; nothing when /proc does not tell it.
std::optional<ProcessIdentity> identifyProcess(pid_t id);

// A user's list: his entry in the password database, the logical paths, and the file names in the lists' folder.
struct ListTarget
{
    std::string login;
    uid_t user = 0;
    std::string currentPath;
    std::string previousPath;

    std::string currentName() const;
    std::string previousName() const;
};

// The calling user, by the real user id of this process.
class Caller
{
public:
    // `sequenceProcess` is the process that the pieces of a write sequence belong to.
    explicit Caller(pid_t sequenceProcess);

    uid_t user() const { return m_user; }
    bool isRoot() const { return m_user == 0; }
    // Looked up anew at each call; nothing when that process cannot be told apart from others.
    std::optional<ProcessIdentity> sequenceOwner() const { return identifyProcess(m_sequenceProcess); }

    // The list that the caller may touch under that name: his own, or for root that of any user in the password
    // database. Nothing for every other text; compared byte for byte.
    std::optional<ListTarget> listOfLogin(std::string_view login) const;
    std::optional<ListTarget> listOfCurrentPath(std::string_view path) const;
    std::optional<ListTarget> listOfPreviousPath(std::string_view path) const;
    // By the URL that the plug-in forms of the current path.
    std::optional<ListTarget> listOfUrl(std::string_view url) const;

    // Whether a file of that owner may be taken for a list or staging file of the target.
    bool acceptsOwner(uid_t owner, const ListTarget &target) const;

private:
    std::optional<ListTarget> ownList() const;

    uid_t m_user;
    pid_t m_sequenceProcess;
};

} // namespace bv
