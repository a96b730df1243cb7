// Runs the built helper as a child of the test, in a root of its own.
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

// What a child is given besides its arguments.
struct RunOptions
{
    std::map<std::string, std::string> environment; // beside BVCO_ROOT
    std::optional<uid_t> user;                      // another real user (root only), in the fixture's group
    std::string program;                            // another one than the built helper
    std::optional<size_t> fileSizeLimit;            // in bytes, see setrlimit(2)
    bool withoutReaders = false;                    // of standard output and error
    bool withoutStandardStreams = false;            // descriptors 0 to 2 are closed, so no output is seen
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

    // One request, asked by this process.
    RunResult run(const std::vector<std::string> &arguments, const RunOptions &options = {}) const;
    // Expects one line "NAME=TRUE" and exit status 0, or "NAME=FALSE" and 1.
    ::testing::AssertionResult answers(bool expected, const std::vector<std::string> &arguments,
                                       const RunOptions &options = {}) const;
    // The same question, asked by another process that is gone afterwards.
    bool answersElsewhere(bool expected, const std::vector<std::string> &arguments) const;
    // What the fault library and the sanitizers need to get along; see FaultInjection.cpp for the words of a fault.
    RunOptions with(const std::string &fault) const;
    // The request for a walk, and the SNMP library's settings for it: a host that needs no network does not resolve.
    std::vector<std::string> walkRequest(const std::string &host = std::string(80, 'h')) const;
    RunOptions walkSettings() const;

    // Sends the text in pieces and commits it; true when every answer was TRUE.
    bool writeList(const std::string &text, const RunOptions &options = {}, size_t pieceBytes = 90000) const;

    std::string currentPath(const std::string &login) const; // logical
    std::string previousPath(const std::string &login) const;
    std::string url(const std::string &login) const;
    std::string current() const { return currentPath(m_login); }
    std::string previous() const { return previousPath(m_login); }
    std::string url() const { return url(m_login); }
    std::string staging() const { return current() + ".part"; }

    // The real path of a logical one.
    std::string real(const std::string &logical) const { return m_root + logical; }
    std::string folder() const;
    // The contents of a logical path; nothing when no such file is there.
    std::optional<std::string> contents(const std::string &logical) const;
    void put(const std::string &logical, std::string_view contents) const;
    // The names in the lists' folder, sorted and joined by blanks.
    std::string names() const;

    const bool m_isRoot;
    const std::string m_login;
    std::string m_root;
};

// A complete list text; `mark` tells texts apart, `entries` makes them longer (each adds some 1,200 bytes).
std::string listText(std::string_view mark, int entries = 1);

// Runs a function in a child process; its result.
bool inAnotherProcess(const std::function<bool()> &function);

// The same in a process whose children obey permissions like anybody else, even where root runs the tests.
bool underPermissions(const std::function<bool()> &function);

} // namespace bvtest
