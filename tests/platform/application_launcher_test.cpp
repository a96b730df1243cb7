// SPDX-License-Identifier: GPL-2.0-or-later
// Applications that the panel starts: bundles, plain programs and files that are no programs.
#include "platform/ApplicationLauncher.h"

#include "support/TestRoot.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace {

using std::filesystem::perms;

// A root with programs that create a file when they run.
class Applications : public testing::Test
{
protected:
    void place(const std::string &logical, perms mode = perms(0755)) const
    {
        const std::string path = bv::mapRootPath(logical);
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path) << "#!/bin/sh\n: > '" << started().string() << "'\n";
        std::filesystem::permissions(path, mode);
    }

    std::filesystem::path started() const { return m_root.folder() / "started"; }

    bool starts(const char *logical) const
    {
        if (!bv::openApplication(logical))
            return false;
        for (int i = 0; i < 1000 && !std::filesystem::exists(started()); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return std::filesystem::remove(started());
    }

    bvtest::TestRoot m_root;
};

TEST_F(Applications, TheProgramOfABundleHasTheBundlesName)
{
    place("/Applications/Tool 1.2.app/Contents/MacOS/Tool 1.2");
    place("/Applications/plain");
    EXPECT_TRUE(starts("/Applications/Tool 1.2.app"));
    EXPECT_TRUE(starts("/Applications/plain"));
}

TEST_F(Applications, FilesThatAreNoProgramsAreNotStarted)
{
    place("/Applications/text", perms(0644));
    place("/Applications/Other.app/Contents/MacOS/Tool");
    for (const char *path : {"/Applications/text", "/Applications/Other.app", "/Applications/none.app"})
        EXPECT_FALSE(bv::openApplication(path)) << path;
}

} // namespace
