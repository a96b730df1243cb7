// SPDX-License-Identifier: GPL-2.0-or-later
// Runs the built helper as a child of the test, in a scratch root.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace bvtest {

inline constexpr char kAdmin[] = "bvPListIsAdminProfile_XPC";
inline constexpr char kExist[] = "bvPListExistProfile_XPC";
inline constexpr char kRemove[] = "bvPListRemove_XPC";
inline constexpr char kSwap[] = "bvPListSwapProfile_XPC";
inline constexpr char kPiece[] = "writeDataToPlistFile_XPC";
inline constexpr char kCommit[] = "writeDataToPlistFileRename_XPC";

// Settings for a child besides its arguments.
struct RunOptions
{
    std::map<std::string, std::string> environment; // in addition to BVCO_ROOT
    std::optional<uid_t> user;                      // another real user (root only), in the fixture's group
    std::string program;                            // runs this instead of the built helper
    std::optional<size_t> fileSizeLimit;            // in bytes, see setrlimit(2)
    bool withoutReaders = false;                    // standard output and error are pipes without a reader
    bool withoutStandardStreams = false;            // descriptors 0 to 2 are closed, so there is no output
};

struct RunResult
{
    int exitCode = -1; // -1: ended by a signal
    std::string output;
    std::string errors;
};

class HelperTest : public ::testing::Test
{
protected:
    HelperTest();
    ~HelperTest() override;

    // Runs one request, with this process as parent.
    RunResult run(const std::vector<std::string> &arguments, const RunOptions &options = {}) const;
    // Expects the line "NAME=TRUE" and exit status 0, or "NAME=FALSE" and 1.
    ::testing::AssertionResult answers(bool expected, const std::vector<std::string> &arguments,
                                       const RunOptions &options = {}) const;
    // The same for a request whose parent is another process, which ends afterwards.
    bool answersElsewhere(bool expected, const std::vector<std::string> &arguments) const;
    // Options that preload the fault library, and settings that the sanitizers need with it. FaultInjection.cpp
    // describes `fault`.
    RunOptions with(const std::string &fault) const;
    // Options that make the helper wait before the given call until open(2) and close(2) of /gate let it go on.
    RunOptions waitingBefore(const std::string &call) const;
    // The request for a walk, and the SNMP library's settings for it. The default host is too long to resolve, so no
    // network is needed.
    std::vector<std::string> walkRequest(const std::string &host = std::string(80, 'h')) const;
    RunOptions walkSettings() const;

    // Sends the text in pieces and commits it. True if every answer was TRUE.
    bool writeList(const std::string &text, const RunOptions &options = {}, size_t pieceBytes = 90000) const;

    std::string currentPath(const std::string &login) const; // logical
    std::string previousPath(const std::string &login) const;
    std::string url(const std::string &login) const;
    std::string current() const { return currentPath(m_login); }
    std::string previous() const { return previousPath(m_login); }
    std::string url() const { return url(m_login); }
    std::string staging() const { return current() + ".part"; }
    std::string copyName() const { return current() + ".copy"; }

    // The real path of a logical one.
    std::string real(const std::string &logical) const { return m_root + logical; }
    std::string folder() const;
    // Contents of the file at a logical path. Nothing when there is no file.
    std::optional<std::string> contents(const std::string &logical) const;
    void put(const std::string &logical, std::string_view contents) const;
    // File names in the folder of the lists, sorted and separated by blanks.
    std::string names() const;

    const bool m_isRoot;
    const std::string m_login;
    std::string m_root;
};

// A complete list. `mark` tells lists apart. Each of the `entries` adds about 1,200 bytes.
std::string listText(std::string_view mark, int entries = 1);

// Runs a function in a child process and returns its result.
bool inAnotherProcess(const std::function<bool()> &function);

// The same, but the child's own children have no root privileges over files, even when root runs the tests.
bool underPermissions(const std::function<bool()> &function);

} // namespace bvtest
