// SPDX-License-Identifier: GPL-2.0-or-later
// Opens an application by its fixed path.
#pragma once

#include <string_view>

namespace bv {

// Starts the application at a logical path, detached from this process. The path names a program file or a bundle
// folder "Name.app", whose program is "Contents/MacOS/Name". False when there is no such program or it cannot be
// started.
bool openApplication(std::string_view logicalPath);

} // namespace bv
