// SPDX-License-Identifier: GPL-2.0-or-later
// The only place that turns logical paths into real ones.
#include "platform/RootPath.h"

#include <cstdlib>
#include <unistd.h>

namespace bv {

std::string mapRootPath(std::string_view logicalPath)
{
    std::string path;
    if (getuid() == geteuid() && getgid() == getegid()) {
        const char *root = std::getenv("BVCO_ROOT");
        if (root && root[0] == '/')
            path = root;
    }
    while (!path.empty() && path.back() == '/')
        path.pop_back();
    return path.append(logicalPath);
}

} // namespace bv
