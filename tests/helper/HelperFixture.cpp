// SPDX-License-Identifier: GPL-2.0-or-later
// Runs the built helper as a child of the test, in a scratch root.
#include "helper/HelperFixture.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <linux/capability.h>
#include <pwd.h>
#include <sstream>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bvtest {

namespace {

constexpr char kFolder[] = "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70";
constexpr char kHelper[] = BV_BUILD_DIR "/bin/QL70Helper";
constexpr gid_t kSharedGroup = 60007; // group of the folder and of every user that a test runs as

std::string ownLogin()
{
    const passwd *entry = getpwuid(getuid());
    return entry ? entry->pw_name : "";
}

[[noreturn]] void becomeHelper(const std::vector<std::string> &arguments, const RunOptions &options,
                               const std::string &root, std::array<int, 2> output)
{
    dup2(output[0], STDOUT_FILENO);
    dup2(output[1], STDERR_FILENO);
    std::array<int, 2> ends;
    if (options.withoutReaders && pipe(ends.data()) == 0) {
        close(ends[0]);
        dup2(ends[1], STDOUT_FILENO);
        dup2(ends[1], STDERR_FILENO);
    }
    for (int descriptor = 0; options.withoutStandardStreams && descriptor <= STDERR_FILENO; ++descriptor)
        close(descriptor);
    if (options.fileSizeLimit) {
        const rlimit limit = {*options.fileSizeLimit, *options.fileSizeLimit};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    if (options.user && (setgroups(1, &kSharedGroup) != 0 || setgid(kSharedGroup) != 0 || setuid(*options.user) != 0))
        _exit(99);
    setenv("BVCO_ROOT", root.c_str(), 1);
    for (const auto &[name, value] : options.environment)
        setenv(name.c_str(), value.c_str(), 1);
    const std::string program = options.program.empty() ? kHelper : options.program;
    std::vector<char *> words = {const_cast<char *>(program.c_str())};
    for (const std::string &argument : arguments)
        words.push_back(const_cast<char *>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(98);
}

// Reads everything that the child wrote.
std::string readBack(int descriptor)
{
    std::string text(static_cast<size_t>(lseek(descriptor, 0, SEEK_END)), '\0');
    EXPECT_EQ(pread(descriptor, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
    close(descriptor);
    return text;
}

} // namespace

HelperTest::HelperTest() : m_isRoot(getuid() == 0), m_login(ownLogin())
{
    umask(022);
    std::string pattern = ::testing::TempDir() + "bvhelperXXXXXX";
    m_root = mkdtemp(pattern.data());
    std::filesystem::create_directories(folder());
    chmod(m_root.c_str(), 0755);
    if (m_isRoot && chown(folder().c_str(), 0, kSharedGroup) == 0)
        chmod(folder().c_str(), 03775);
    // ld.so(8) splits LD_PRELOAD at blanks, and the build folder's path may contain some. A copy, because other users
    // may have no access to the build folder, and a request that cannot load it would never come to the gate.
    std::filesystem::copy_file(BV_BUILD_DIR "/tests/bvfault.so", m_root + "/bvfault.so");
    EXPECT_NE(m_login, "") << "the user who runs the tests needs an entry in the password database";
}

HelperTest::~HelperTest()
{
    chmod(folder().c_str(), 0755);
    std::error_code ignored;
    std::filesystem::remove_all(m_root, ignored);
}

RunResult HelperTest::run(const std::vector<std::string> &arguments, const RunOptions &options) const
{
    const int output = memfd_create("output", MFD_CLOEXEC);
    const int errors = memfd_create("errors", MFD_CLOEXEC);
    const pid_t child = fork();
    if (child == 0)
        becomeHelper(arguments, options, m_root, {output, errors});
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readBack(output), readBack(errors)};
}

::testing::AssertionResult HelperTest::answers(bool expected, const std::vector<std::string> &arguments,
                                               const RunOptions &options) const
{
    const RunResult result = run(arguments, options);
    if (result.output == arguments[0] + (expected ? "=TRUE\n" : "=FALSE\n") && result.exitCode == (expected ? 0 : 1))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "printed \"" << result.output << "\", exit status " << result.exitCode
                                         << ", diagnostics \"" << result.errors << '"';
}

bool HelperTest::answersElsewhere(bool expected, const std::vector<std::string> &arguments) const
{
    return inAnotherProcess([&] { return static_cast<bool>(answers(expected, arguments)); });
}

RunOptions HelperTest::with(const std::string &fault) const
{
    RunOptions options;
    options.environment = {{"LD_PRELOAD", m_root + "/bvfault.so"},
                           {"FAULT", fault},
                           {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0"}};
    return options;
}

RunOptions HelperTest::waitingBefore(const std::string &call) const
{
    mkfifo(real("/gate").c_str(), 0600);
    RunOptions options = with(call + ":1:WAIT");
    options.environment["FAULT_NAME"] = real("/gate");
    return options;
}

std::vector<std::string> HelperTest::walkRequest(const std::string &host) const
{
    return {"mibwalk_XPC",
            "QL70",
            m_login,
            "snmpwalk",
            "-Os",
            "-c",
            "mirror",
            "-v",
            "1",
            host,
            "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1"};
}

RunOptions HelperTest::walkSettings() const
{
    std::filesystem::create_directories(real("/snmp"));
    put("/snmp/snmp.conf", "defaultPort 9\nretries 0\ntimeout 1\n");
    RunOptions options;
    options.environment = {{"SNMPCONFPATH", real("/snmp")}, {"SNMP_PERSISTENT_DIR", real("/snmp")}};
    return options;
}

bool HelperTest::writeList(const std::string &text, const RunOptions &options, size_t pieceBytes) const
{
    for (size_t begin = 0; begin < text.size(); begin += pieceBytes) {
        if (!answers(true, {"writeDataToPlistFile_XPC", url(), text.substr(begin, pieceBytes)}, options))
            return false;
    }
    return static_cast<bool>(answers(true, {"writeDataToPlistFileRename_XPC", url()}, options));
}

std::string HelperTest::currentPath(const std::string &login) const
{
    return std::string(kFolder) + "/" + login + "-QL70-profile.plist";
}

std::string HelperTest::previousPath(const std::string &login) const
{
    return std::string(kFolder) + "/" + login + "-QL70-profile.prev.plist";
}

std::string HelperTest::url(const std::string &login) const
{
    return "file://" + currentPath(login);
}

std::string HelperTest::folder() const
{
    return real(kFolder);
}

std::optional<std::string> HelperTest::contents(const std::string &logical) const
{
    std::ifstream file(real(logical), std::ios::binary);
    if (!file)
        return std::nullopt;
    return (std::ostringstream() << file.rdbuf()).str();
}

void HelperTest::put(const std::string &logical, std::string_view contents) const
{
    std::ofstream(real(logical), std::ios::binary) << contents;
}

std::string HelperTest::names() const
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder()))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    std::string joined;
    for (const std::string &name : names)
        joined += (joined.empty() ? "" : " ") + name;
    return joined;
}

std::string listText(std::string_view mark, int entries)
{
    std::ostringstream text;
    text << R"(<?xml version="1.0" encoding="UTF-8"?>)"
         << "\n<plist version=\"1.0\">\n<dict>\n";
    for (const char *list : {"RGB", "SIM", "DST"}) {
        text << "<key>" << list << "</key><dict><key>iNum</key><integer>0</integer>\n";
        for (const std::string_view field :
             {"IndexOnDevice", "InMenu", "ProfileClass", "Location", "FileName", "ProfileName"}) {
            text << "<key>" << field << "</key><dict>";
            for (int i = 0; i < entries; ++i) {
                text << "<key>" << field << i << "</key>";
                if (field.ends_with("Name"))
                    text << "<string>" << mark << "</string>\n";
                else
                    text << "<integer>0</integer>\n";
            }
            text << "</dict>";
        }
        text << "</dict>\n";
    }
    text << "<key>PlistVersion</key><integer>1</integer>\n</dict>\n</plist>\n";
    return text.str();
}

bool inAnotherProcess(const std::function<bool()> &function)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(function() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool underPermissions(const std::function<bool()> &function)
{
    return inAnotherProcess([&] {
        for (const int capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER})
            prctl(PR_CAPBSET_DROP, capability);
        return function();
    });
}

} // namespace bvtest
