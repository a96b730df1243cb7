// SPDX-License-Identifier: GPL-2.0-or-later
// Where the list files of a user lie. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace bv {

// The folder of the list files, a logical path without a slash at the end.
inline constexpr char kProfileFolder[] = "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70";

// Size of the buffer in which the paths are formed, including the NUL.
inline constexpr size_t kProfilePathBytes = 255;

// Two logical paths. Map them with mapRootPath before opening a file.
struct ProfilePaths
{
    std::string current;  // the list in use
    std::string previous; // its earlier copy, used only in requests to swap and to remove
};

// The paths for a login name. A path that is too long for the buffer is cut at its end. Both are empty for an empty
// name.
ProfilePaths profilePathsFor(std::string_view login);

// The paths of the user whose lists this process works on: the owner of the process (real user id), or the user set by
// setProfileLogin.
ProfilePaths profilePaths();

// Makes this process work on the lists of another user, as a privileged helper does. An empty name goes back to the
// owner of the process.
void setProfileLogin(std::string_view login);

} // namespace bv
