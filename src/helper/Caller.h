// SPDX-License-Identifier: GPL-2.0-or-later
// The calling user, and the list that a path, URL or login name in a request stands for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace bv {

// Identifies one process. The start time tells it apart from a later process with the same id.
struct ProcessIdentity
{
    pid_t id = 0;
    uint64_t startTime = 0; // clock ticks since boot, see /proc/PID/stat in proc(5)
};

// Identity of a running process. Nothing when /proc does not show it.
std::optional<ProcessIdentity> identifyProcess(pid_t id);

// The list of one user: the user's entry in the password database, and the logical paths of the two files.
// The names are those of the user's files in the folder of the lists.
struct ListTarget
{
    std::string login;
    uid_t user = 0;
    std::string currentPath;
    std::string previousPath;

    std::string currentName() const;
    std::string previousName() const;
    // Where a current list that cannot be read is kept aside.
    std::string unreadableName() const;
    // The pieces of a list that is being written.
    std::string stagingName() const { return currentName() + ".part"; }
    // The temporary file of a swap.
    std::string copyName() const { return currentName() + ".copy"; }
};

// The calling user, identified by the real user id of this process.
class Caller
{
public:
    // `sequenceProcess` is the process that owns the write sequence of this caller.
    explicit Caller(pid_t sequenceProcess);

    uid_t user() const { return m_user; }
    bool isRoot() const { return m_user == 0; }
    // Looked up at each call. Nothing when the process cannot be identified.
    std::optional<ProcessIdentity> sequenceOwner() const { return identifyProcess(m_sequenceProcess); }

    // The list with this name that the caller may change: the caller's own, or for root that of any user in the
    // password database. Nothing for all other texts. The comparison is byte by byte.
    std::optional<ListTarget> listOfLogin(std::string_view login) const;
    std::optional<ListTarget> listOfCurrentPath(std::string_view path) const;
    std::optional<ListTarget> listOfPreviousPath(std::string_view path) const;
    // By the file URL of the current path, as the plug-in writes it.
    std::optional<ListTarget> listOfUrl(std::string_view url) const;

    // True if a file of this owner may be a list or staging file of the target.
    bool acceptsOwner(uid_t owner, const ListTarget &target) const;

private:
    std::optional<ListTarget> ownList() const;

    uid_t m_user;
    pid_t m_sequenceProcess;
};

} // namespace bv
