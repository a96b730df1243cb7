// SPDX-License-Identifier: GPL-2.0-or-later
// The walk of the simulated printer with every fault, and of an agent with another SNMP implementation.
#include "support/ProgramUnderTest.h"

#include "discovery/ProfileSpool.h"
#include "discovery/ProfileWalk.h"
#include "discovery/SnmpEnvironment.h"
#include "simulator/Fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <set>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

// Replaces the walk's trace hook through the link options.
extern "C" void __wrap__Z14MyDebugMessagePKcj(const char *message, uint32_t level);

namespace {

using bvtest::ProgramUnderTest;
using bvtest::ScratchFolder;
using std::chrono::milliseconds;
using testing::ElementsAre;

// Where the last message to the walk's trace hook goes: memory that this process shares with those that walk.
char *lastTrace = nullptr;

struct Walks
{
    std::vector<std::string> hosts;        // one walk each
    std::vector<std::string> options = {}; // in front of the host
    std::string community = "mirror";
    std::string root = "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1";
    bv::WalkLimits limits = {};
};

// The state that the walks of a process leave behind.
struct Walked
{
    std::array<int32_t, 3> statuses;
    int32_t variables;
    char message[sizeof(sDEBUGmsg)];
    char traced[sizeof(sDEBUGmsg)]; // the last trace
    ProfileList spool;

    std::string row(int number) const
    {
        const ProfileRecord &record = spool.records[number - 1];
        std::string text;
        for (const int32_t field :
             {record.IndexOnDevice, record.InMenu, record.Location, record.ProfileClass, record.Availability})
            text += std::to_string(field) + ' ';
        return text.append(bv::fieldText(record.FileName)).append("|").append(bv::fieldText(record.ProfileName));
    }
};

// Runs walks in a process of their own, because the library and the walk keep state for the life of a process.
class Walker
{
public:
    explicit Walker(const Walks &walks)
        : m_walked(static_cast<Walked *>(
              mmap(nullptr, sizeof(Walked), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {
        m_pid = fork();
        if (m_pid == 0) {
            run(walks);
            _exit(0);
        }
    }
    Walker(const Walker &) = delete;
    Walker &operator=(const Walker &) = delete;
    ~Walker() { munmap(m_walked, sizeof(Walked)); }

    pid_t pid() const { return m_pid; }
    // Waits until the process ends.
    Walked result() const
    {
        int status = -1;
        EXPECT_EQ(waitpid(m_pid, &status, 0), m_pid);
        EXPECT_EQ(status, 0);
        return *m_walked;
    }

private:
    void run(const Walks &walks) const
    {
        lastTrace = m_walked->traced;
        for (size_t walk = 0; walk < walks.hosts.size(); ++walk) {
            std::vector<std::string> words = {"snmpwalk", "-Os", "-c", walks.community, "-v", "1"};
            words.insert(words.end(), walks.options.begin(), walks.options.end());
            words.insert(words.end(), {walks.hosts[walk], walks.root});
            std::vector<char *> vector;
            vector.reserve(words.size() + 1);
            for (std::string &word : words)
                vector.push_back(word.data());
            vector.push_back(nullptr);
            m_walked->statuses[walk] =
                bv::walkProfileTable(static_cast<int32_t>(words.size()), vector.data(), walks.limits);
        }
        m_walked->variables = numprinted;
        std::memcpy(m_walked->message, sDEBUGmsg, sizeof(sDEBUGmsg));
        m_walked->spool = PlistForSpool;
    }

    Walked *m_walked;
    pid_t m_pid;
};

// The value of a line in the status of a process, see proc(5). Empty when there is none.
std::string lineOf(pid_t process, const std::string &name)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word, value; status >> word;)
        if (word == name && status >> value)
            return value;
    return "";
}

Walked walked(const Walks &walks)
{
    return Walker(walks).result();
}

class ProfileWalk : public testing::Test
{
protected:
    // One try of one second for an agent that does not answer, and no configuration of the machine. This root has no
    // helper, so no list is written.
    ProfileWalk()
    {
        m_folder.write("snmp.conf", "timeout 1\nretries 0\n");
        setenv("SNMPCONFPATH", m_folder.path().c_str(), 1);
        setenv("BVCO_ROOT", m_folder.path().c_str(), 1);
    }
    ~ProfileWalk() override { unsetenv("BVCO_ROOT"); }

    ScratchFolder m_folder;
};

class Simulator
{
public:
    explicit Simulator(const std::string &fault = "", std::vector<std::string> words = {})
        : m_program(command(fault, std::move(words)))
    {
        EXPECT_TRUE(m_program.waitFor("ready on")) << m_program.output();
        EXPECT_TRUE(m_program.waitFor("\n"));
    }
    std::string host() const { return "127.0.0.1:" + std::to_string(m_program.numberBehind(" port ")); }
    // Ends the agent and returns the number of requests that it received.
    long requests()
    {
        EXPECT_EQ(m_program.stop(), 0) << m_program.output();
        return m_program.numberBehind("requests=");
    }

private:
    static std::vector<std::string> command(const std::string &fault, std::vector<std::string> words)
    {
        words.insert(words.begin(), {BV_BUILD_DIR "/bin/ql70sim", "--port", "0", "--count"});
        if (!fault.empty())
            words.insert(words.end(), {"--fault", fault});
        return words;
    }

    ProgramUnderTest m_program;
};

TEST_F(ProfileWalk, BringsEveryKeptColumnOfEveryRow)
{
    const std::string list = m_folder.write("list", "11 disk ONE.ICC \"Profile one\" 1 1\n"
                                                    "12 card TWO.ICC \"Profil \\xc3\\xa9\" 3 0\n");
    Simulator simulator("", {"--profiles", list});
    testing::internal::CaptureStdout();
    const Walked left = walked({.hosts = {simulator.host()}});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(left.statuses[0], 0);
    EXPECT_EQ(left.spool.count, 2);
    EXPECT_EQ(left.variables, 14) << "column 6 counts as a variable of the table";
    EXPECT_STREQ(left.message, "");
    EXPECT_EQ(left.row(1), "11 0 4 1 1 ONE.ICC|Profile one");
    EXPECT_EQ(left.row(2), "12 0 5 3 0 TWO.ICC|Profil é");
    EXPECT_EQ(simulator.requests(), 15);
}

struct FaultCase
{
    const char *fault;
    int status;
    int count;
    int variables;
    int requests;
    const char *message;
};

// The simulator's own list has 7 rows of 7 cells; "the middle" is the 25th.
constexpr char kOrder[] = "[SNMP] Error: OID not increasing: \x01 >= \x01";
// clang-format off
constexpr FaultCase kFaultCases[] = {
    {"no-such-name",      0, 0,   0,     2,     ""},
    {"general-error",     2, 7,   25,    26,    ""},
    {"same-again",        1, 7,   26,    26,    kOrder},
    {"decreasing",        1, 7,   26,    26,    kOrder},
    {"cycle",             1, 8,   50,    50,    kOrder},
    {"no-variables",      0, 7,   25,    26,    ""},
    {"endless",           1, 500, 20000, 20000, ""},
    {"dies",              1, 7,   25,    -1,    ""},
    {"wrong-types",       0, 4,   49,    50,    ""},
    {"rows-out-of-range", 0, 7,   91,    92,    ""},
    {"odd-instances",     0, 8,   63,    64,    ""},
    {"odd-texts",         0, 8,   56,    57,    ""},
    {"rows-500",          0, 500, 3500,  3501,  ""},
    {"gaps",              0, 5,   34,    35,    ""},
    {"neighbour",         0, 7,   49,    50,    ""},
};
// clang-format on

TEST_F(ProfileWalk, EndsWithTheRightStatusForEveryFault)
{
    // Run at once, since some walks wait a second for an answer.
    std::vector<std::unique_ptr<Simulator>> printers;
    std::vector<std::unique_ptr<Walker>> walkers;
    std::set<std::string> tried = {"silent", "slow"}; // have tests of their own
    for (const FaultCase &row : kFaultCases) {
        tried.insert(row.fault);
        printers.push_back(std::make_unique<Simulator>(row.fault));
        walkers.push_back(std::make_unique<Walker>(Walks{.hosts = {printers.back()->host()}}));
    }
    for (size_t i = 0; i < walkers.size(); ++i) {
        const FaultCase &expected = kFaultCases[i];
        SCOPED_TRACE(expected.fault);
        const Walked left = walkers[i]->result();
        EXPECT_EQ(left.statuses[0], expected.status);
        EXPECT_EQ(left.spool.count, expected.count);
        EXPECT_EQ(left.variables, expected.variables);
        EXPECT_STREQ(left.message, expected.message);
        if (expected.requests >= 0) {
            EXPECT_EQ(printers[i]->requests(), expected.requests);
        }
    }
    for (const sim::Fault &fault : sim::faults())
        EXPECT_TRUE(tried.contains(fault.name)) << fault.name;
}

TEST_F(ProfileWalk, ASlowPrinterIsGivenUpAfterTheTimeLimit)
{
    Simulator simulator("slow");
    EXPECT_EQ(walked({.hosts = {simulator.host()}, .limits = {.time = milliseconds(350)}}).statuses[0], 1);
    EXPECT_LE(simulator.requests(), 4);
}

TEST_F(ProfileWalk, TheTriesOfARequestFitIntoTheTimeThatIsLeft)
{
    // Each try may take ten minutes, so only the limit can end the walk before the test times out.
    m_folder.write("snmp.conf", "timeout 600\nretries 5\n");
    Simulator once("silent");
    EXPECT_EQ(walked({.hosts = {once.host()}, .limits = {.time = milliseconds(100)}}).statuses[0], 1);
    EXPECT_EQ(once.requests(), 1);
    Simulator twice("silent");
    EXPECT_EQ(
        walked({.hosts = {twice.host()}, .options = {"-t", "0.2"}, .limits = {.time = milliseconds(500)}}).statuses[0],
        1);
    EXPECT_EQ(twice.requests(), 2);
}

TEST_F(ProfileWalk, TheNumberOfVariablesIsKeptBetweenWalks)
{
    Simulator full;
    Simulator empty("no-such-name");
    const Walked left = walked({.hosts = {empty.host(), full.host(), empty.host()}});
    EXPECT_THAT(left.statuses, ElementsAre(0, 0, 0));
    EXPECT_EQ(left.variables, 49);
    EXPECT_EQ(left.spool.count, 0) << "the spool is a new one for each walk";
    EXPECT_EQ(empty.requests(), 3) << "the first walk asks for the root itself, the third no more";
}

TEST_F(ProfileWalk, OptionsChangeTheWalk)
{
    Simulator again("same-again");
    const Walked unchecked = walked({.hosts = {again.host()}, .options = {"-Cc"}, .limits = {.answers = 100}});
    EXPECT_EQ(unchecked.statuses[0], 1);
    EXPECT_STREQ(unchecked.message, "") << "the order is not checked; the number of answers ends the walk";
    EXPECT_EQ(again.requests(), 100);

    Simulator included;
    const Walked counted = walked({.hosts = {included.host()}, .options = {"-Cip"}});
    EXPECT_EQ(counted.statuses[0], 0);
    EXPECT_EQ(included.requests(), 51) << "the root is asked for first";
    EXPECT_STREQ(counted.traced, "[UTIL-MIB] Variables found: 49");
    EXPECT_STREQ(walked({.hosts = {"127.0.0.1:1"}, .options = {"-Cp"}, .root = "1.x"}).traced, "")
        << "nothing is counted where no walk was begun";

    Simulator unknown;
    const Walked left = walked({.hosts = {unknown.host()}, .options = {"-Cxc"}});
    EXPECT_EQ(left.statuses[0], 0);
    EXPECT_STREQ(left.message, "Unknown flag passed to -C: x\n");
}

TEST_F(ProfileWalk, TheRootsOwnValueIsPrintedWhenNothingLiesBelowIt)
{
    Simulator simulator("neighbour");
    testing::internal::CaptureStdout();
    const Walked left = walked({.hosts = {simulator.host()}, .root = "1.3.6.1.4.1.39847.1.1.1.1.6.14.0"});
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("STRING: \"QL70\""));
    EXPECT_EQ(left.statuses[0], 0);
    EXPECT_EQ(left.variables, 1);
}

TEST_F(ProfileWalk, RefusesBadWordsAndHosts)
{
    EXPECT_EQ(walked({.hosts = {"127.0.0.1"}, .root = "no such object"}).statuses[0], 1);
    EXPECT_LT(walked({.hosts = {"127.0.0.1"}, .options = {"-v9"}}).statuses[0], 0);
    // A label of a host name has at most 63 bytes (RFC 1035, 2.3.4), so this name is refused without a look-up.
    EXPECT_EQ(walked({.hosts = {std::string(80, 'h')}}).statuses[0], 1);
    EXPECT_EQ(walked({.hosts = {"[fe80"}}).statuses[0], 1);
}

TEST_F(ProfileWalk, TheEnvironmentBringsNoMibsAndNoPrefix)
{
    setenv("MIBS", "ALL", 1);
    setenv("MIBDIRS", m_folder.file("mibs").c_str(), 1);
    setenv("MIBFILES", m_folder.write("mibs/TRAP-MIB", "TRAP-MIB DEFINITIONS ::= BEGIN broken").c_str(), 1);
    setenv("PREFIX", ".1.2.3", 1);
    setenv("SNMP_PERSISTENT_DIR", m_folder.file("persistent").c_str(), 1);
    Simulator simulator;
    testing::internal::CaptureStderr();
    const Walked left = walked({.hosts = {simulator.host()}});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(left.statuses[0], 0);
    EXPECT_EQ(left.spool.count, 7);
    EXPECT_NE(access(m_folder.file("persistent").c_str(), F_OK), 0);

    bv::prepareSnmpEnvironment(); // in this process, so that the test can inspect it
    for (const char *name : {"MIBFILES", "PREFIX", "SNMP_PERSISTENT_FILE"})
        EXPECT_EQ(getenv(name), nullptr) << name;
    EXPECT_EQ(getenv("SNMPCONFPATH"), m_folder.path()) << "the caller's own settings stay";
}

// The process that walks for the process `walker`. 0 when that one ends first.
pid_t fencedChildOf(pid_t walker)
{
    for (;;) {
        siginfo_t ended = {};
        if (waitid(P_PID, static_cast<id_t>(walker), &ended, WEXITED | WNOHANG | WNOWAIT) != 0 || ended.si_pid != 0)
            return 0;
        const std::string task = "/proc/" + std::to_string(walker) + "/task/" + std::to_string(walker) + "/children";
        pid_t child = 0;
        std::ifstream(task) >> child;
        if (child > 0 && lineOf(child, "NoNewPrivs:") == "1")
            return child;
        usleep(1000);
    }
}

TEST_F(ProfileWalk, PacketsAreReadWithoutRightsAndACrashOrHangIsAFailedWalk)
{
    m_folder.write("snmp.conf", "timeout 600\n");
    for (const int signal : {SIGSEGV, SIGSTOP}) {
        Simulator simulator("silent");
        const Walker walker(
            {.hosts = {simulator.host()},
             .limits = {.time = milliseconds(signal == SIGSTOP ? 1000 : 60000), .beforeAndAfter = milliseconds(500)}});
        const pid_t child = fencedChildOf(walker.pid());
        ASSERT_NE(child, 0);
        if (!lineOf(getpid(), "Seccomp:").empty()) {
            while (lineOf(child, "Seccomp:") == "0") // the last part of the fence
                usleep(1000);
            EXPECT_EQ(lineOf(child, "Seccomp:"), "2");
        }
        kill(child, signal);
        const Walked left = walker.result();
        EXPECT_EQ(left.statuses[0], 1);
        EXPECT_EQ(left.variables, 0);
        EXPECT_NE(kill(child, 0), 0) << "it is gone";
    }
}

// ---- An agent with another SNMP implementation ----

struct ReplyCase
{
    const char *mode;
    int status;
    int count;
    int variables;
    int requests;
    const char *firstRow;
};

// The table has 21 cells. Replies are broken from the 12th on, and the library keeps waiting for a correct one.
// clang-format off
constexpr char kWhole[]   = "11 0 4 1 1 ONE.ICC|Première";
constexpr char kHalf[]    = "11 0 4 0 0 ONE.ICC|Première";
constexpr char kNothing[] = "0 0 0 0 0 |";
constexpr char kCut[]     = "11 0 4 1 1 AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA|AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA";
constexpr ReplyCase kReplyCases[] = {
    {"plain",           0, 3, 21, 22, kWhole},
    {"extra-variables", 0, 3, 21, 11, kWhole},
    {"stray-variable",  0, 3, 21, 22, kWhole},
    {"wrong-id",        1, 3, 11, 12, kHalf},
    {"cut",             1, 3, 11, 12, kHalf},
    {"garbage",         1, 3, 11, 12, kHalf},
    {"long-length",     1, 3, 11, 12, kHalf},
    {"empty",           1, 3, 11, 12, kHalf},
    {"forged",          0, 3, 21, 22, kWhole},
    {"other-port",      1, 0, 0,  1,  kNothing},
    {"huge-texts",      0, 3, 21, 22, kCut},
};
// clang-format on

TEST_F(ProfileWalk, HandlesEveryReplyOfAnotherAgent)
{
    ProgramUnderTest agent({"/usr/bin/python3", BV_SOURCE_DIR "/tests/support/pysnmp_agent.py"});
    ASSERT_TRUE(agent.waitFor("ready ") && agent.waitFor("\n")) << agent.output();
    const std::string host = "127.0.0.1:" + std::to_string(agent.numberBehind("ready "));
    // Run at once; the community selects the agent's behavior.
    std::vector<std::unique_ptr<Walker>> walkers;
    walkers.reserve(std::size(kReplyCases));
    for (const ReplyCase &row : kReplyCases)
        walkers.push_back(std::make_unique<Walker>(Walks{.hosts = {host}, .community = row.mode}));
    std::vector<Walked> left;
    left.reserve(walkers.size());
    for (const auto &walker : walkers)
        left.push_back(walker->result());
    agent.stop();
    for (size_t i = 0; i < left.size(); ++i) {
        const ReplyCase &expected = kReplyCases[i];
        SCOPED_TRACE(expected.mode);
        EXPECT_EQ(left[i].statuses[0], expected.status);
        EXPECT_EQ(left[i].spool.count, expected.count);
        EXPECT_EQ(left[i].variables, expected.variables);
        EXPECT_EQ(left[i].row(1), expected.firstRow);
        EXPECT_EQ(agent.occurrences("asked " + std::string(expected.mode) + '\n'), expected.requests);
    }
}

} // namespace

void __wrap__Z14MyDebugMessagePKcj(const char *message, uint32_t /*level*/)
{
    if (lastTrace)
        std::snprintf(lastTrace, sizeof(Walked::traced), "%s", message);
}
