// SPDX-License-Identifier: GPL-2.0-or-later
// Decides when an unreadable current list is kept aside, so that it never replaces the last good previous list.
#include "helper/UnreadableList.h"

#include "helper/Diagnostics.h"
#include "platform/FileContents.h"
#include "profiles/ProfileListFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr mode_t kReplaceable = 0444;

} // namespace

bool isReadableList(const FileDescriptor &file, const std::string &name)
{
    const auto text = fileContents(file.get(), name, kPlistMaximumBytes);
    return lseek(file.get(), 0, SEEK_SET) == 0 && text && isCompleteProfileList(*text);
}

std::optional<bool> hasReadablePrevious(const ListFolder &folder, const Caller &caller, const ListTarget &target)
{
    const FoundFile previous = folder.find(target.previousName(), O_RDONLY, caller, target);
    if (previous.standing == Standing::Missing)
        return false;
    std::string text;
    if (previous.standing != Standing::Usable || !readToEnd(previous.file.get(), &text, kPlistMaximumBytes))
        return std::nullopt;
    return text.size() <= kPlistMaximumBytes && isCompleteProfileList(text);
}

bool hasFreshUnreadable(const ListFolder &folder, const Caller &caller, const ListTarget &target)
{
    const FoundFile aside = folder.find(target.unreadableName(), O_PATH, caller, target);
    return aside.standing == Standing::Usable && (aside.status.st_mode & S_IWUSR) != 0;
}

void noteReadableWritten(const ListFolder &folder, const Caller &caller, const ListTarget &target)
{
    const FoundFile aside = folder.find(target.unreadableName(), O_RDONLY, caller, target);
    if (aside.standing == Standing::Usable && fchmod(aside.file.get(), kReplaceable) != 0)
        complain("cannot mark the list that is kept aside", errno);
}

} // namespace bv
