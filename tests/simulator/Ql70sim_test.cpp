// SPDX-License-Identifier: GPL-2.0-or-later
// The program from outside: its arguments, reloading its list, and the answers that a standard client gets.
#include "support/ProgramUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace {

using bvtest::ProgramUnderTest;
using bvtest::ScratchFolder;
using testing::HasSubstr;

constexpr char kSimulator[] = BV_BUILD_DIR "/bin/ql70sim";
constexpr char kEntry[] = ".1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1";

class Ql70sim : public testing::Test
{
protected:
    Ql70sim()
    {
        m_folder.write("snmp.conf", "mibs :\ntimeout 1\nretries 1\n");
        setenv("SNMPCONFPATH", m_folder.path().c_str(), 1);
        setenv("SNMP_PERSISTENT_DIR", "/dev/null", 1);
    }

    struct Ended
    {
        int status;
        std::string output;
    };
    static Ended run(std::vector<std::string> command)
    {
        ProgramUnderTest program(command);
        const int status = program.wait();
        return {status, program.output()};
    }
    static Ended client(const char *tool, const ProgramUnderTest &printer, const std::string &community,
                        std::vector<std::string> words)
    {
        std::vector<std::string> command = {tool, "-v1", "-On", "-c", community};
        if (community != "mirror")
            command.insert(command.end(), {"-t", "0.2", "-r", "0"}); // no answer is expected
        command.push_back("127.0.0.1:" + std::to_string(printer.numberBehind(" port ")));
        command.insert(command.end(), words.begin(), words.end());
        return run(command);
    }
    static std::string cell(const std::string &suffix) { return kEntry + suffix; }

    ScratchFolder m_folder;
};

TEST_F(Ql70sim, RefusesBadArgumentsAndLists)
{
    const std::string bad = m_folder.write("bad", "1 disk\n");
    const std::vector<std::pair<std::vector<std::string>, const char *>> cases = {
        {{}, "--port is missing"},
        {{"--port", "x"}, "\"x\" is no port"},
        {{"--port", "65536"}, "\"65536\" is no port"},
        {{"--port", "0", "more"}, "\"more\" is one argument too many"},
        {{"--port", "0", "--profiles", m_folder.path()}, "it cannot be read"},
        {{"--port", "0", "--fault", "nonsense"}, "there is no fault \"nonsense\""},
        {{"--port", "0", "--profiles", bad}, "bad: line 1: a row has six fields"},
        {{"--port", "0", "--profiles", "/nowhere"}, "/nowhere: it cannot be read"},
        {{"--nonsense\x1b[2J"}, "\"--nonsense\\x1b[2J\" is an unrecognized option"},
        {{"--port", "0", "--fault"}, "\"--fault\" needs a value"},
    };
    for (const auto &[words, problem] : cases) {
        std::vector<std::string> command = {kSimulator};
        command.insert(command.end(), words.begin(), words.end());
        const Ended ended = run(command);
        EXPECT_EQ(ended.status, 2) << problem;
        EXPECT_THAT(ended.output, HasSubstr(problem));
        EXPECT_EQ(ended.output.find('\x1b'), std::string::npos) << problem;
    }
}

TEST_F(Ql70sim, ATakenPortHasAnExitStatusOfItsOwn)
{
    ProgramUnderTest first({kSimulator, "--port", "0"});
    ASSERT_TRUE(first.waitFor("ready on"));
    const Ended second = run({kSimulator, "--port", std::to_string(first.numberBehind(" port "))});
    EXPECT_EQ(second.status, 1);
    EXPECT_THAT(second.output, HasSubstr("cannot listen on udp:127.0.0.1:"));
}

TEST_F(Ql70sim, DecreasingStepsBackFromTheMiddleCell)
{
    ProgramUnderTest printer({kSimulator, "--port", "0", "--fault", "decreasing"});
    ASSERT_TRUE(printer.waitFor("ready on"));
    EXPECT_THAT(client("snmpgetnext", printer, "mirror", {cell(".4.1.4")}).output, HasSubstr(cell(".4.1.3 = ")));
    EXPECT_THAT(client("snmpgetnext", printer, "mirror", {cell(".4.1.3")}).output, HasSubstr(cell(".4.1.4 = ")));
}

TEST_F(Ql70sim, ReloadsItsListWhileItRuns)
{
    const std::string list = m_folder.write("list", "1 disk A.ICC Alpha 1 1\n2 disk B.ICC Beta 1 1\n");
    ProgramUnderTest printer({kSimulator, "--port", "0", "--profiles", list});
    ASSERT_TRUE(printer.waitFor("ready on"));
    EXPECT_THAT(client("snmpget", printer, "mirror", {cell(".4.1.2")}).output, HasSubstr("STRING: \"B.ICC\""));

    m_folder.write("list", "gap\nbroken\n");
    printer.signal(SIGHUP);
    ASSERT_TRUE(printer.waitFor("line 2: a row has six fields"));
    EXPECT_THAT(client("snmpget", printer, "mirror", {cell(".4.1.2")}).output, HasSubstr("STRING: \"B.ICC\""));

    m_folder.write("list", "9 card C.ICC Gamma 3 1\n");
    printer.signal(SIGHUP);
    ASSERT_TRUE(printer.waitFor("list read again, 1 rows"));
    EXPECT_THAT(client("snmpget", printer, "mirror", {cell(".2.1.1")}).output, HasSubstr("INTEGER: 5"));
    EXPECT_THAT(client("snmpget", printer, "mirror", {cell(".4.1.2")}).output, HasSubstr("noSuchName"));
    EXPECT_EQ(printer.stop(), 0);
}

TEST_F(Ql70sim, AnswersOnlyItsCommunityAndRefusesChanges)
{
    ProgramUnderTest printer({kSimulator, "--port", "0"});
    ASSERT_TRUE(printer.waitFor("ready on"));
    EXPECT_THAT(client("snmpset", printer, "mirror", {cell(".1.1.1"), "i", "5"}).output, HasSubstr("noSuchName"));
    EXPECT_THAT(client("snmpget", printer, "public", {cell(".1.1.1")}).output, HasSubstr("Timeout"));
}

} // namespace
