// SPDX-License-Identifier: GPL-2.0-or-later
// A scratch root for one test: a folder that BVCO_ROOT names, removed with its contents at the end.
#pragma once

#include "platform/RootPath.h"
#include "profiles/HelperRequest.h"
#include "profiles/ProfilePaths.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace bvtest {

class TestRoot
{
public:
    TestRoot()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "bvtest.XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
        setenv("BVCO_ROOT", m_folder.c_str(), 1);
        std::filesystem::create_directories(bv::mapRootPath(bv::kProfileFolder));
    }
    TestRoot(const TestRoot &) = delete;
    TestRoot &operator=(const TestRoot &) = delete;
    ~TestRoot()
    {
        unsetenv("BVCO_ROOT");
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    const std::filesystem::path &folder() const { return m_folder; }

    // Real path of the current list file of the user who runs the test.
    static std::filesystem::path listFile() { return bv::mapRootPath(bv::profilePaths().current); }

    static void writeList(std::string_view text)
    {
        std::ofstream(listFile(), std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
    }

    static std::string readFile(const std::filesystem::path &path)
    {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    // Installs a shell script instead of the helper.
    static void installHelper(std::string_view script)
    {
        const std::filesystem::path path = bv::mapRootPath(kHelperPath);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << "#!/bin/sh\n" << script << '\n';
        std::filesystem::permissions(path, std::filesystem::perms(0755));
    }

private:
    std::filesystem::path m_folder;
};

// While it exists, this process works on the lists of a login name that needs no account.
class NamedUser
{
public:
    NamedUser() { bv::setProfileLogin("ada"); }
    NamedUser(const NamedUser &) = delete;
    NamedUser &operator=(const NamedUser &) = delete;
    ~NamedUser() { bv::setProfileLogin(""); }
};

} // namespace bvtest
