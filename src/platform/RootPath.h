// SPDX-License-Identifier: GPL-2.0-or-later
// Maps the system's fixed logical paths ("/Library/…", "/Applications/…") to where they lie on this machine.
// Free of Qt and libcups.
#pragma once

#include <string>
#include <string_view>

namespace bv {

// The real path of a logical path: the directory named by the environment variable BVCO_ROOT is put in front of it. The
// variable is ignored when it is empty or relative, and in a process whose real and effective ids differ. Call it only
// where a file is opened, run, listed or tested; requests and URLs carry logical paths.
std::string mapRootPath(std::string_view logicalPath);

} // namespace bv
