// Where the list files of a user lie. Free of Qt and libcups.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace bv {

// The folder of the list files, a logical path without a slash at the end.
inline constexpr char kProfileFolder[] = "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70";

// The size of the buffer in which the file names are formed, its NUL included.
inline constexpr size_t kProfilePathBytes = 255;

// Two logical paths, to be mapped by mapRootPath where a file is really touched.
struct ProfilePaths
{
    std::string current;  // the list in use
    std::string previous; // its earlier copy, named only in requests to swap and to remove
};

// The paths for a login name. What does not fit the buffer is cut off its end; both are empty for an empty name.
ProfilePaths profilePathsFor(std::string_view login);

// The paths of the user whose lists this process works on: the owner of the process (real user id), or the one that
// setProfileLogin named.
ProfilePaths profilePaths();

// From now on this process works on the lists of another login name (a privileged helper that acts for a user); an
// empty name goes back to the owner of the process.
void setProfileLogin(std::string_view login);

} // namespace bv
