// SPDX-License-Identifier: GPL-2.0-or-later
// A scratch root with the built helper and the program that resolves services installed in it.
#pragma once

#include "support/TestRoot.h"

namespace bvtest {

class ListRoot : public TestRoot
{
public:
    ListRoot()
    {
        installHelper({}); // creates the folder
        const std::filesystem::path helper = bv::mapRootPath(kHelperPath);
        std::filesystem::remove(helper);
        std::filesystem::create_symlink(BV_BUILD_DIR "/bin/QL70Helper", helper);
    }

    // Path of a file in the root's folder.
    std::string file(std::string_view name) const { return (folder() / name).string(); }

    // Writes such a file and returns its path.
    std::string write(std::string_view name, std::string_view text) const
    {
        const std::filesystem::path path = file(name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
        return path.string();
    }
};

} // namespace bvtest
