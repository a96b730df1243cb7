// Opens an application by its fixed path.
#pragma once

#include <string_view>

namespace bv {

// Starts the application at a logical path, detached from this process: the file itself, or, when the path is a bundle
// folder "Name.app", its program "Contents/MacOS/Name". False when there is nothing to start.
bool openApplication(std::string_view logicalPath);

} // namespace bv
