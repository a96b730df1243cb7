// The walk against the simulated printer with every fault, the stock SNMP daemon, and an agent on another SNMP stack.
#include "support/ProgramUnderTest.h"

#include "platform/ChildProcess.h"
#include "simulator/Fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <set>
#include <sstream>
#include <unistd.h>

namespace {

using bvtest::ProgramUnderTest;
using bvtest::ScratchFolder;
using testing::ElementsAre;
using testing::StartsWith;

constexpr char kSimulator[] = BV_BUILD_DIR "/bin/ql70sim";
constexpr char kProbe[] = BV_BUILD_DIR "/tests/walk_probe";

struct Walked
{
    std::vector<int> statuses;
    int count = -1;
    int numprinted = -1;
    std::string message;
    std::vector<std::string> rows; // as the probe prints them, texts in plain
    std::string printed;           // what the walk itself printed
};

std::string plain(const std::string &hex)
{
    std::string text;
    for (size_t i = 0; i + 1 < hex.size(); i += 2)
        text += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return text;
}

Walked parse(const std::string &output)
{
    Walked walked;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string first;
        words >> first;
        if (first == "status") {
            words >> walked.statuses.emplace_back();
        } else if (first == "count") {
            words >> walked.count;
        } else if (first == "numprinted") {
            words >> walked.numprinted;
        } else if (first == "message") {
            std::string hex;
            words >> hex;
            walked.message = plain(hex);
        } else if (first == "row") {
            std::string row;
            for (std::string word; words >> word;)
                row += (row.empty() ? "" : " ") + (word.ends_with('.') ? '"' + plain(word) + '"' : word);
            walked.rows.push_back(row);
        } else {
            walked.printed += line + '\n';
        }
    }
    return walked;
}

class ProfileWalk : public testing::Test
{
protected:
    // One time-out of one second where an agent does not answer, and nothing from the machine's own configuration.
    ProfileWalk()
    {
        m_folder.write("snmp.conf", "timeout 1\nretries 0\n");
        setenv("SNMPCONFPATH", m_folder.path().c_str(), 1);
        setenv("BVCO_ROOT", m_folder.path().c_str(), 1);
    }

    static Walked walk(std::vector<std::string> arguments)
    {
        const std::optional<bv::ChildResult> result = bv::runChild(kProbe, arguments);
        EXPECT_TRUE(result && result->exitCode == 0);
        return result ? parse(result->output) : Walked{};
    }

    static std::string at(long port) { return "127.0.0.1:" + std::to_string(port); }

    ScratchFolder m_folder;
};

class Simulator
{
public:
    explicit Simulator(const std::string &fault = {}, const std::string &profiles = {})
        : m_program(command(fault, profiles))
    {
        EXPECT_TRUE(m_program.waitFor("ready on")) << m_program.output();
        EXPECT_TRUE(m_program.waitFor("\n"));
    }
    std::string host() const { return "127.0.0.1:" + std::to_string(m_program.numberBehind(" port ")); }
    // Ends it; the number of requests that it got.
    long requests()
    {
        EXPECT_EQ(m_program.stop(), 0) << m_program.output();
        return m_program.numberBehind("requests=");
    }

private:
    static std::vector<std::string> command(const std::string &fault, const std::string &profiles)
    {
        std::vector<std::string> words = {kSimulator, "--port", "0", "--count"};
        if (!fault.empty())
            words.insert(words.end(), {"--fault", fault});
        if (!profiles.empty())
            words.insert(words.end(), {"--profiles", profiles});
        return words;
    }

    ProgramUnderTest m_program;
};

TEST_F(ProfileWalk, BringsEveryKeptColumnOfEveryRow)
{
    const std::string list = m_folder.write("list", "11 disk ONE.ICC \"Profile one\" 1 1\n"
                                                    "12 card TWO.ICC \"Profil \\xc3\\xa9\" 3 0\n");
    Simulator simulator({}, list);
    const Walked walked = walk({simulator.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(0));
    EXPECT_EQ(walked.count, 2);
    EXPECT_EQ(walked.numprinted, 14) << "column 6 counts as a variable of the table";
    EXPECT_EQ(walked.message, "");
    EXPECT_EQ(walked.printed, "");
    EXPECT_THAT(walked.rows,
                ElementsAre("1 11 0 4 1 1 \"ONE.ICC\" \"Profile one\"", "2 12 0 5 3 0 \"TWO.ICC\" \"Profil é\""));
    EXPECT_EQ(simulator.requests(), 15);
}

struct FaultCase
{
    const char *fault;
    int status;
    int count;
    int numprinted;
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
    {"silent",            1, 0,   0,     1,     ""},
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

void PrintTo(const FaultCase &row, std::ostream *out)
{
    *out << row.fault;
}

class ProfileWalkFault : public ProfileWalk, public testing::WithParamInterface<FaultCase>
{};

TEST_P(ProfileWalkFault, EndsAsItShould)
{
    const FaultCase &expected = GetParam();
    Simulator simulator(expected.fault);
    const Walked walked = walk({simulator.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(expected.status));
    EXPECT_EQ(walked.count, expected.count);
    EXPECT_EQ(walked.numprinted, expected.numprinted);
    EXPECT_EQ(walked.message, expected.message);
    EXPECT_EQ(walked.printed, "");
    if (expected.requests >= 0) {
        EXPECT_EQ(simulator.requests(), expected.requests);
    }
}

INSTANTIATE_TEST_SUITE_P(Each, ProfileWalkFault, testing::ValuesIn(kFaultCases), [](const auto &info) {
    std::string name = info.param.fault;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST_F(ProfileWalk, EveryFaultOfTheSimulatorIsTried)
{
    std::set<std::string> tried = {"slow"}; // in a test of its own
    for (const FaultCase &row : kFaultCases)
        tried.insert(row.fault);
    for (const sim::Fault &fault : sim::faults())
        EXPECT_TRUE(tried.contains(fault.name)) << fault.name;
}

TEST_F(ProfileWalk, CutsTextsAtTheFieldAndAtAZeroByte)
{
    Simulator simulator("odd-texts");
    std::vector<std::string> names;
    for (const std::string &row : walk({simulator.host()}).rows)
        names.push_back(row.substr(row.find('"'), row.rfind(" \"") - row.find('"')));
    EXPECT_THAT(names, ElementsAre('"' + std::string(32, 'A') + '"', '"' + std::string(32, 'B') + '"',
                                   '"' + std::string(32, 'C') + '"', "\"D\"", "\"F\x01\x1b\n.IC\"", "\"\xff\xfe.ICC\"",
                                   "\"\"", "\"G%s%n.ICC\""));
}

TEST_F(ProfileWalk, IgnoresRowsThatHaveNoSlot)
{
    Simulator simulator("rows-out-of-range");
    const Walked walked = walk({simulator.host()});
    ASSERT_EQ(walked.rows.size(), 7U);
    EXPECT_THAT(walked.rows.back(), StartsWith("7 7 0 5 "));
}

TEST_F(ProfileWalk, ASlowPrinterIsLeftAfterTheTimeLimit)
{
    Simulator simulator("slow");
    const Walked walked = walk({"--milliseconds", "350", simulator.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(1));
    EXPECT_LE(simulator.requests(), 4);
}

TEST_F(ProfileWalk, ALastRequestGetsNoMoreTimeThanIsLeft)
{
    // With ten minutes for each try only the limit can end this within the test's own limit.
    m_folder.write("snmp.conf", "timeout 600\nretries 5\n");
    Simulator simulator("silent");
    EXPECT_THAT(walk({"--milliseconds", "100", simulator.host()}).statuses, ElementsAre(1));
    EXPECT_EQ(simulator.requests(), 1);
}

TEST_F(ProfileWalk, TheNumberOfVariablesOutlivesAWalk)
{
    Simulator full;
    Simulator empty("no-such-name");
    const Walked walked = walk({empty.host(), full.host(), empty.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(0, 0, 0));
    EXPECT_EQ(walked.numprinted, 49);
    EXPECT_EQ(walked.count, 0) << "the spool is a new one for each walk";
    EXPECT_EQ(empty.requests(), 3) << "the first walk asks for the root itself, the third no more";
}

TEST_F(ProfileWalk, OptionsChangeTheWalk)
{
    Simulator again("same-again");
    const Walked unchecked = walk({"--answers", "100", "--word", "-Cc", again.host()});
    EXPECT_THAT(unchecked.statuses, ElementsAre(1));
    EXPECT_EQ(unchecked.message, "") << "the order is not checked; the number of answers ends the walk";
    EXPECT_EQ(again.requests(), 100);

    Simulator included;
    EXPECT_THAT(walk({"--word", "-Cip", included.host()}).statuses, ElementsAre(0));
    EXPECT_EQ(included.requests(), 51) << "the root is asked for first";

    Simulator unknown;
    const Walked walked = walk({"--word", "-Cxc", unknown.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(0));
    EXPECT_EQ(walked.message, "Unknown flag passed to -C: x\n");
}

TEST_F(ProfileWalk, TheRootsOwnValueIsPrintedWhenNothingLiesBelowIt)
{
    Simulator simulator("neighbour");
    const Walked walked = walk({"--root", "1.3.6.1.4.1.39847.1.1.1.1.6.14.0", simulator.host()});
    EXPECT_THAT(walked.statuses, ElementsAre(0));
    EXPECT_EQ(walked.numprinted, 1);
    EXPECT_THAT(walked.printed, testing::HasSubstr("STRING: \"QL70\""));
}

TEST_F(ProfileWalk, WordsAndHostsThatDoNotWork)
{
    EXPECT_THAT(walk({"--root", "no such object", "127.0.0.1"}).statuses, ElementsAre(1));
    EXPECT_THAT(walk({"--word", "-v9", "127.0.0.1"}).statuses, ElementsAre(testing::Lt(0)));
    // A label of a host name has at most 63 bytes (RFC 1035, 2.3.4), so this one is refused before anyone is asked.
    EXPECT_THAT(walk({std::string(80, 'h')}).statuses, ElementsAre(1));
    EXPECT_THAT(walk({"[fe80"}).statuses, ElementsAre(1));
}

TEST_F(ProfileWalk, TheEnvironmentBringsNoMibsAndNoPrefix)
{
    const std::string folder = m_folder.path();
    m_folder.write("mibs/TRAP-MIB", "TRAP-MIB DEFINITIONS ::= BEGIN broken");
    setenv("MIBS", "ALL", 1);
    setenv("MIBDIRS", (folder + "/mibs").c_str(), 1);
    setenv("MIBFILES", (folder + "/mibs/TRAP-MIB").c_str(), 1);
    setenv("PREFIX", ".1.2.3", 1);
    setenv("SNMP_PERSISTENT_DIR", (folder + "/persistent").c_str(), 1);
    Simulator simulator;
    ProgramUnderTest probe({kProbe, simulator.host()});
    EXPECT_EQ(probe.wait(), 0);
    EXPECT_THAT(probe.output(), StartsWith("status 0\ncount 7\n")) << "nothing on standard error either";
    EXPECT_NE(access((folder + "/persistent").c_str(), F_OK), 0);
}

// ---- Agents of other makers ----

TEST_F(ProfileWalk, ReadsTheTableOfTheStockDaemon)
{
    std::unique_ptr<ProgramUnderTest> daemon;
    int port = 0;
    // Another process may take the port between the choice and the start.
    for (int attempt = 0; attempt < 5 && !daemon; ++attempt) {
        port = bvtest::freeUdpPort();
        const std::string configuration =
            m_folder.write("snmpd/snmpd.conf", "agentAddress udp:" + at(port) +
                                                   "\nrocommunity mirror 127.0.0.1\n"
                                                   "pass_persist .1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1 " BV_SOURCE_DIR
                                                   "/tests/support/pass_table.py\n");
        setenv("SNMP_PERSISTENT_DIR", m_folder.file("snmpd").c_str(), 1);
        setenv("MIBS", "", 1);
        daemon = std::make_unique<ProgramUnderTest>(std::vector<std::string>{"/usr/sbin/snmpd", "-f", "-Lo", "-C", "-c",
                                                                             configuration, "-I", "-smux,hr_print"});
        if (!daemon->waitFor("NET-SNMP version"))
            daemon.reset();
    }
    ASSERT_TRUE(daemon);
    const Walked walked = walk({at(port)});
    EXPECT_THAT(walked.statuses, ElementsAre(0));
    EXPECT_THAT(walked.rows,
                ElementsAre("1 1 0 4 1 1 \"OFFICE.ICC\" \"Office RGB\"", "2 2 0 5 3 1 \"PROOF.ICC\" \"Card Proof\""));
    EXPECT_EQ(walked.numprinted, 14);
    daemon->stop();
}

struct ReplyCase
{
    const char *mode;
    int status;
    int count;
    int numprinted;
    int requests;
};

// 21 cells in the table, the 12th and the following are broken; the library waits for a right answer meanwhile.
// clang-format off
constexpr ReplyCase kReplyCases[] = {
    {"plain",           0, 3, 21, 22},
    {"extra-variables", 0, 3, 21, 11},
    {"stray-variable",  0, 3, 21, 22},
    {"wrong-id",        1, 3, 11, 12},
    {"cut",             1, 3, 11, 12},
    {"garbage",         1, 3, 11, 12},
    {"long-length",     1, 3, 11, 12},
    {"empty",           1, 3, 11, 12},
};
// clang-format on

void PrintTo(const ReplyCase &row, std::ostream *out)
{
    *out << row.mode;
}

class ProfileWalkReply : public ProfileWalk, public testing::WithParamInterface<ReplyCase>
{};

TEST_P(ProfileWalkReply, IsTakenOrLeft)
{
    const ReplyCase &expected = GetParam();
    ProgramUnderTest agent({"/usr/bin/python3", BV_SOURCE_DIR "/tests/support/pysnmp_agent.py", expected.mode});
    ASSERT_TRUE(agent.waitFor("ready ") && agent.waitFor("\n")) << agent.output();
    const Walked walked = walk({at(agent.numberBehind("ready "))});
    EXPECT_THAT(walked.statuses, ElementsAre(expected.status));
    EXPECT_EQ(walked.count, expected.count);
    EXPECT_EQ(walked.numprinted, expected.numprinted);
    agent.stop();
    const std::string output = agent.output();
    int asked = 0;
    for (size_t i = output.find("asked"); i != std::string::npos; i = output.find("asked", i + 1))
        ++asked;
    EXPECT_EQ(asked, expected.requests);
    if (expected.status == 0) {
        EXPECT_EQ(walked.rows.front(), "1 11 0 4 1 1 \"ONE.ICC\" \"Première\"");
    }
}

INSTANTIATE_TEST_SUITE_P(Each, ProfileWalkReply, testing::ValuesIn(kReplyCases), [](const auto &info) {
    std::string name = info.param.mode;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
