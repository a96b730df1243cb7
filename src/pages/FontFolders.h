// SPDX-License-Identifier: GPL-2.0-or-later
// The folders that hold the system's and the user's fonts.
#pragma once

#include <string>
#include <vector>

namespace bv {

// Has fontconfig read its settings and caches, and returns the folders of all fonts and of Poppler's character maps.
// These are all that drawing text opens later.
std::vector<std::string> fontFolders();

} // namespace bv
