// Maps the system's fixed logical paths ("/Library/…", "/Applications/…") to where they lie on this machine.
// Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// The real path of a logical path: the directory in the environment variable BVCO_ROOT is put in front of it. Unset,
// empty or relative values are ignored, and so is the variable in a process whose real and effective ids differ.
// To be used only where a file is really opened, run, listed or tested; requests and URLs carry logical paths.
std::string mapRootPath(std::string_view logicalPath);

} // namespace bv
