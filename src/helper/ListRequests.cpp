// SPDX-License-Identifier: GPL-2.0-or-later
// Answers the requests about the list files.
#include "helper/ListRequests.h"

#include "helper/Diagnostics.h"
#include "helper/FileLocker.h"
#include "helper/ListFolder.h"
#include "helper/StagingFile.h"
#include "helper/UnreadableList.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace bv {

namespace {

constexpr size_t kCopyBytes = size_t{64} << 10;

// Opens the folder. Nothing when the caller may not manage profiles.
std::optional<ListFolder> openForWriting()
{
    auto folder = ListFolder::open();
    if (!folder)
        return std::nullopt;
    if (!folder->writableByCaller()) {
        complain("the caller may not manage profiles");
        return std::nullopt;
    }
    return folder;
}

bool known(const std::optional<ListTarget> &target)
{
    if (!target)
        complain("that is not a list of the caller");
    return target.has_value();
}

bool copyBytes(const FileDescriptor &from, const FileDescriptor &to)
{
    std::array<char, kCopyBytes> buffer;
    ssize_t got;
    while ((got = readSome(from.get(), buffer)) > 0) {
        if (!writeAll(to.get(), std::string_view(buffer.data(), static_cast<size_t>(got))))
            return false;
    }
    return got == 0;
}

// A copy of one of the user's lists over another. Its temporary file is the same for all of them, so that its lock
// keeps two swaps of one user apart.
class ListCopy
{
public:
    // Makes and locks the temporary file. Borrows all three.
    ListCopy(const ListFolder &folder, const Caller &caller, const ListTarget &target)
        : m_folder(folder), m_caller(caller), m_target(target),
          m_file(FileLocker(folder, caller, target).makeNew(target.copyName()))
    {}
    ListCopy(const ListCopy &) = delete;
    ListCopy &operator=(const ListCopy &) = delete;
    ~ListCopy()
    {
        if (m_file && m_folder.stillNamed(m_target.copyName(), m_file))
            m_folder.removeIfNamed(m_target.copyName(), m_file);
    }

    explicit operator bool() const { return static_cast<bool>(m_file); }
    // Call it once.
    bool replace(const FileDescriptor &source, const std::string &to) const
    {
        if (m_folder.find(to, O_PATH, m_caller, m_target).standing == Standing::Foreign)
            return false;
        if (copyBytes(source, m_file))
            return m_folder.replace(m_target.copyName(), m_file, to);
        complain("cannot copy the list", errno);
        return false;
    }

private:
    const ListFolder &m_folder;
    const Caller &m_caller;
    const ListTarget &m_target;
    const FileDescriptor m_file;
};

} // namespace

Outcome answerIsAdmin(const Caller &caller, RequestArguments arguments)
{
    if (!known(caller.listOfCurrentPath(arguments[0])))
        return outcomeOf(false);
    const auto folder = ListFolder::open();
    return outcomeOf(folder && folder->writableByCaller());
}

Outcome answerExist(const Caller &caller, RequestArguments arguments)
{
    const auto target = caller.listOfCurrentPath(arguments[0]);
    if (!known(target))
        return outcomeOf(false);
    const auto folder = ListFolder::open();
    return outcomeOf(folder &&
                     folder->find(target->currentName(), O_PATH, caller, *target).standing == Standing::Usable);
}

Outcome answerRemove(const Caller &caller, RequestArguments arguments)
{
    const auto current = caller.listOfCurrentPath(arguments[0]);
    const auto target = current ? current : caller.listOfPreviousPath(arguments[0]);
    if (!known(target))
        return outcomeOf(false);
    const auto folder = openForWriting();
    if (!folder)
        return outcomeOf(false);
    const std::string name = current ? target->currentName() : target->previousName();
    const FoundFile found = folder->find(name, O_PATH, caller, *target);
    if (found.standing != Standing::Usable)
        return outcomeOf(false);
    // A list that took its place meanwhile was written after this request, and stays.
    if (folder->stillNamed(name, found.file) && !folder->removeIfNamed(name, found.file))
        return outcomeOf(false);
    folder->flush(); // a failed flush does not matter: the file is removed
    return outcomeOf(true);
}

Outcome answerSwap(const Caller &caller, RequestArguments arguments)
{
    const std::string_view code = arguments[0];
    const auto target = caller.listOfCurrentPath(arguments[1]);
    if (!known(target) || target->previousPath != arguments[2] || (code != "2" && code != "3"))
        return outcomeOf(false);
    const auto folder = openForWriting();
    if (!folder)
        return outcomeOf(false);
    const bool keepCurrent = code == "2";
    const std::string current = target->currentName();
    const std::string previous = target->previousName();
    const std::string &from = keepCurrent ? current : previous;
    if (folder->find(from, O_PATH, caller, *target).standing != Standing::Usable)
        return outcomeOf(false);
    const ListCopy copy(*folder, caller, *target);
    if (!copy)
        return outcomeOf(false);
    const FoundFile source = folder->find(from, O_RDONLY, caller, *target);
    if (source.standing != Standing::Usable)
        return outcomeOf(false);
    // The last good copy stays where the current list cannot be read; that one goes aside, once.
    const bool readable = isReadableList(source.file, from);
    if (keepCurrent && !readable) {
        const std::optional<bool> keepPrevious = hasReadablePrevious(*folder, caller, *target);
        if (!keepPrevious)
            return outcomeOf(false);
        if (*keepPrevious)
            return outcomeOf(hasFreshUnreadable(*folder, caller, *target) ||
                             copy.replace(source.file, target->unreadableName()));
    }
    const bool copied = copy.replace(source.file, keepCurrent ? previous : current);
    // A readable list can also come back by a swap, or by hand and not through this program.
    if (copied && readable)
        noteReadableWritten(*folder, caller, *target);
    return outcomeOf(copied);
}

Outcome answerPiece(const Caller &caller, RequestArguments arguments)
{
    const auto target = caller.listOfUrl(arguments[0]);
    if (!known(target))
        return outcomeOf(false);
    const auto folder = openForWriting();
    return outcomeOf(folder && StagingFile(*folder, caller, *target).add(arguments[1]));
}

Outcome answerCommit(const Caller &caller, RequestArguments arguments)
{
    const auto target = caller.listOfUrl(arguments[0]);
    if (!known(target))
        return outcomeOf(false);
    const auto folder = openForWriting();
    return outcomeOf(folder && StagingFile(*folder, caller, *target).commit());
}

} // namespace bv
