// SPDX-License-Identifier: GPL-2.0-or-later
// The refresh: the requests to the helper, and the complete way from a queue to the list file.
#include "platform/ClassNames.h"

#include "common/PDECommon.h"

#include "support/ListRoot.h"
#include "support/PaneFixture.h"
#include "support/ProgramUnderTest.h"
#include "support/SampleLists.h"

#include "platform/Log.h"
#include "platform/UserName.h"
#include "profiles/ProfileOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace {

using bvtest::TestSession;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Answers every request and records it.
class RecordingHelper : public bv::HelperTransport
{
public:
    explicit RecordingHelper(std::optional<std::string> walkAnswer) : m_walkAnswer(std::move(walkAnswer))
    {
        m_before = bv::setHelperTransport(this);
    }
    ~RecordingHelper() override { bv::setHelperTransport(m_before); }

    bool available() override { return m_available; }
    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override
    {
        std::string line(request);
        for (const std::string &argument : arguments)
            line += ' ' + argument;
        m_requests.push_back(line);
        return request == "mibwalk_XPC" ? m_walkAnswer : std::string(request) + "=TRUE\n";
    }

    bool m_available = true;
    std::vector<std::string> m_requests;

private:
    std::optional<std::string> m_walkAnswer;
    bv::HelperTransport *m_before;
};

// The lines of the diagnostic log for a refresh of a queue.
std::string logOfRefresh(const char *uri)
{
    setenv("BVCO_LOG", "stderr", 1);
    testing::internal::CaptureStderr();
    TestSession session(QString::fromUtf8(uri));
    EXPECT_EQ(PDECommon::commonGetProfilesFromMIB(&session), 0);
    return testing::internal::GetCapturedStderr();
}

TEST(ProfileRefresh, SendsExactlyTheWalkRequestAfterTheSwap)
{
    RecordingHelper helper("mibwalk_XPC=iRet=0\n");
    TestSession session(QStringLiteral("lpd://user@10.0.0.7:515/queue"));
    EXPECT_EQ(PDECommon::commonGetProfilesFromMIB(&session), 0);
    ASSERT_EQ(helper.m_requests.size(), 3U);
    EXPECT_THAT(helper.m_requests[1], testing::StartsWith("bvPListSwapProfile_XPC 2 /Library/Printers/"));
    EXPECT_EQ(helper.m_requests[2], "mibwalk_XPC QL70 " + bv::loginName() +
                                        " snmpwalk -Os -c mirror -v 1 10.0.0.7 1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1");
}

TEST(ProfileRefresh, WithoutAHostThereIsOnlyTheSwap)
{
    for (const char *uri : {"usb://BREVANE/QL70", "lpd:///q", "lpd://-Lfname/q", "ipp://printer/ipp"}) {
        RecordingHelper helper("mibwalk_XPC=iRet=0\n");
        EXPECT_THAT(logOfRefresh(uri), HasSubstr("Device address: ")) << uri;
        EXPECT_EQ(helper.m_requests.size(), 2U) << uri;
    }
    RecordingHelper helper("mibwalk_XPC=iRet=0\n");
    EXPECT_EQ(PDECommon::commonGetProfilesFromMIB(nullptr), 0);
    EXPECT_EQ(helper.m_requests.size(), 2U);
}

TEST(ProfileRefresh, EveryOutcomeIsSilentAndLeavesOneLineInTheLog)
{
    const std::pair<std::optional<std::string>, const char *> cases[] = {
        {"mibwalk_XPC=iRet=0\n", "Profile refresh: the walk ended with 0, and the list was not written\n"},
        {"a value\nmibwalk_XPC=iRet=-3\n", "Profile refresh: the walk ended with -3, and the list was not written\n"},
        {"mibwalk_XPC=iRet=x", "Profile refresh: the walk ended with 0, and the list was not written\n"},
        {"", "Profile refresh: the helper gave no result\n"},
        {std::nullopt, "Profile refresh: the helper gave no result\n"},
    };
    for (const auto &[answer, line] : cases) {
        RecordingHelper helper(answer);
        EXPECT_THAT(logOfRefresh("lpd://10.0.0.7/q"), testing::EndsWith(line));
    }
    RecordingHelper missing(std::nullopt);
    missing.m_available = false;
    EXPECT_THAT(logOfRefresh("lpd://10.0.0.7/q"), testing::EndsWith("Profile refresh: no helper\n"));
    EXPECT_THAT(missing.m_requests, IsEmpty());
}

// Keeps what it hears.
class Listener : public bv::LogObserver
{
public:
    Listener() { bv::setLogObserver(this); }
    ~Listener() { bv::setLogObserver(nullptr); }
    void logged(bv::LogSubject subject) override { subjects.push_back(subject); }

    std::vector<bv::LogSubject> subjects;
};

// ---- With the real helper and a simulated printer ----

class WholeRefresh : public testing::Test
{
protected:
    void configure(long port)
    {
        m_root.write("snmp/snmp.conf", "timeout 1\nretries 0\ndefaultPort " + std::to_string(port) + "\n");
        setenv("SNMPCONFPATH", m_root.file("snmp").c_str(), 1);
    }

    static void refresh(const QString &host = QStringLiteral("127.0.0.1"))
    {
        TestSession session(QStringLiteral("lpd://%1:515/queue").arg(host));
        EXPECT_EQ(PDECommon::commonGetProfilesFromMIB(&session), 0);
    }

    // File names of the RGB list with their states.
    static std::vector<std::string> rgbList()
    {
        const auto lists = bvtest::makeLists();
        EXPECT_EQ(BVPListReadProfile_All(&lists->rgb, &lists->sim, &lists->dst), 0);
        std::vector<std::string> names;
        for (const ProfileRecord &record : std::span(lists->rgb.records).first(static_cast<size_t>(lists->rgb.count)))
            names.push_back(std::string(bv::fieldText(record.FileName)) + '=' + std::to_string(record.InMenu));
        return names;
    }

    static std::string previousFile() { return bv::mapRootPath(bv::profilePaths().previous); }

    bvtest::ListRoot m_root;
};

TEST_F(WholeRefresh, UpdatesTheListFromThePrinter)
{
    const std::string list = m_root.write("list", "1 disk ONE.ICC One 1 1\n2 disk TWO.ICC Two 1 1\n");
    bvtest::ProgramUnderTest printer({BV_BUILD_DIR "/bin/ql70sim", "--port", "0", "--profiles", list});
    ASSERT_TRUE(printer.waitFor("ready on"));
    configure(printer.numberBehind(" port "));

    refresh();
    EXPECT_THAT(rgbList(), ElementsAre("ONE.ICC=2", "TWO.ICC=2"));
    EXPECT_FALSE(std::filesystem::exists(previousFile())) << "there was nothing to keep before";
    const std::string first = bvtest::TestRoot::readFile(bvtest::TestRoot::listFile());

    m_root.write("list", "1 card THREE.ICC Three 2 1\n2 disk TWO.ICC Two 1 1\n");
    printer.signal(SIGHUP);
    ASSERT_TRUE(printer.waitFor("list read again"));
    refresh();
    EXPECT_THAT(rgbList(), ElementsAre("ONE.ICC=1", "TWO.ICC=2", "THREE.ICC=2"));
    EXPECT_EQ(bvtest::TestRoot::readFile(previousFile()), first);

    refresh(QString(80, QLatin1Char('h'))); // a host name too long to resolve, so the test need not wait
    EXPECT_THAT(rgbList(), IsEmpty()) << "profiles that nobody put into a menu go when the printer does not answer";
}

TEST_F(WholeRefresh, TellsWhoListensThatTheListCannotBeWritten)
{
    const Listener listener;
    refresh(QString(80, QLatin1Char('h')));
    EXPECT_THAT(listener.subjects, IsEmpty()) << "a printer that does not answer is no fault of the list";
    std::filesystem::remove(bvtest::TestRoot::listFile());
    std::filesystem::create_directory(bvtest::TestRoot::listFile());
    refresh(QString(80, QLatin1Char('h')));
    EXPECT_THAT(listener.subjects, ElementsAre(bv::LogSubject::RefreshNotWritten));
}

} // namespace
