// A root folder of a test's own with the helper installed and the folder of the list files made.
#pragma once

#include "support/ProgramUnderTest.h"

#include "profiles/HelperRequest.h"
#include "profiles/ProfilePaths.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace bv::test {

class ListRoot
{
public:
    ListRoot()
    {
        namespace fs = std::filesystem;
        setenv("BVCO_ROOT", m_folder.path().c_str(), 1);
        fs::create_directories(m_folder.path() + kProfileFolder);
        const fs::path helper = m_folder.path() + kHelperPath;
        fs::create_directories(helper.parent_path());
        fs::create_symlink(BV_BUILD_DIR "/bin/QL70Helper", helper);
    }

    const ScratchFolder &folder() const { return m_folder; }
    std::string currentFile() const { return m_folder.path() + profilePaths().current; }
    std::string previousFile() const { return m_folder.path() + profilePaths().previous; }

private:
    ScratchFolder m_folder;
};

} // namespace bv::test
