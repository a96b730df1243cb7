// SPDX-License-Identifier: GPL-2.0-or-later
// The agent: for which jobs of a private print server it opens the dialog, and how it is switched on and off.
#include "support/PrivateCupsd.h"
#include "support/ProgramUnderTest.h"

#include "heldjobs/AgentSwitch.h"
#include "heldjobs/JobAgent.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::PrivateCupsd;

constexpr char kDocument[] = BV_SOURCE_DIR "/resources/demo/sample.pdf";
constexpr int kPatience = 30000;
constexpr char kBvprint[] = BV_BUILD_DIR "/bin/bvprint";

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// In place of the dialog: writes its arguments down, and ends when a file named like the job is there.
constexpr char kWindow[] = R"(#!/bin/sh
echo "$*" >> "$0.opened"
while ! [ -e "$0.close-$2" ] && [ -e "$0" ]; do sleep 0.05; done
)";

class Agent : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_server.listenOnPort(); // a socket's file stays when the server ends by force
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("Held"));
        ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "Held", "-o", "job-hold-until-default=indefinite"}));
        m_server.useHere(m_folder.path());
        QFile window(m_window);
        ASSERT_TRUE(window.open(QIODevice::WriteOnly));
        window.write(kWindow);
        window.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void TearDown() override { QFile::remove(m_window); }

    void lp(const QStringList &options)
    {
        ASSERT_TRUE(m_server.administer("lp", QStringList{"-d", "Held"} + options + QStringList{kDocument}));
    }
    QByteArray opened() const { return contentOf(m_window + ".opened"); }
    bool waitForOpened(const QByteArray &lines)
    {
        return QTest::qWaitFor([&] { return opened() == lines; }, kPatience);
    }
    void close(int job)
    {
        QFile file(m_window + QStringLiteral(".close-%1").arg(job));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    // Waits for an answer of the server to a question that was asked after this call, and what the agent made of it.
    void waitForLooks(bv::JobAgent &agent)
    {
        QSignalSpy looked(&agent, &bv::JobAgent::looked);
        ASSERT_TRUE(QTest::qWaitFor([&] { return looked.size() > 1 && looked.last()[0].toBool(); }, kPatience));
    }

    PrivateCupsd m_server;
    QTemporaryDir m_folder;
    QString m_window = m_folder.filePath("window");
};

TEST_F(Agent, OpensTheDialogForNewJobsOfTheUserOneAfterAnother)
{
    lp({}); // 1: waits already
    bv::JobAgent agent(m_window, std::chrono::milliseconds(20));
    waitForLooks(agent);
    lp({"-U", "somebody"}); // 2
    lp({"-H", "23:59"});    // 3: comes by itself
    lp({});                 // 4
    lp({});                 // 5
    lp({});                 // 6
    ASSERT_TRUE(waitForOpened("--job 4\n"));
    // One that is released elsewhere before its turn is left out.
    ASSERT_TRUE(m_server.administer("lp", {"-i", "5", "-H", "resume"}));
    waitForLooks(agent);
    EXPECT_EQ(opened(), "--job 4\n");
    close(4);
    ASSERT_TRUE(waitForOpened("--job 4\n--job 6\n"));
    close(6);
    // The jobs still wait, as their user left them, and are not asked about again, also by a server that comes back.
    m_server.stop();
    QSignalSpy looked(&agent, &bv::JobAgent::looked);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !looked.isEmpty() && !looked.last()[0].toBool(); }, kPatience));
    ASSERT_EQ(m_server.start().toStdString(), "");
    waitForLooks(agent);
    EXPECT_EQ(opened(), "--job 4\n--job 6\n");
    lp({}); // 7
    EXPECT_TRUE(waitForOpened("--job 4\n--job 6\n--job 7\n"));
    close(7);
    // An agent that ends leaves its window open, and lets go of the process.
    auto *window = agent.findChild<QProcess *>();
    EXPECT_TRUE(QTest::qWaitFor([window] { return window->state() == QProcess::NotRunning; }, kPatience));
}

TEST(AgentSwitch, WritesTheUsersAutostartFileAndTakesItAway)
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.filePath("config").toUtf8());
    const QString file = bv::agentAutostartFile();
    EXPECT_EQ(file, folder.filePath("config/autostart/bvprint-agent.desktop"));
    EXPECT_EQ(bv::switchAgentOff(), "");
    EXPECT_EQ(bv::switchAgentOn("/opt/50% \"$x\"/bvprint"), "");
    const QByteArray text = contentOf(file);
    EXPECT_TRUE(text.contains("\nExec=\"/opt/50%% \\\\\"\\\\$x\\\\\"/bvprint\" --agent run\n")) << text.constData();
    EXPECT_EQ(bv::switchAgentOff(), "");
    EXPECT_FALSE(QFile::exists(file));
    ASSERT_TRUE(QDir(folder.path()).mkpath("config/autostart/bvprint-agent.desktop"));
    EXPECT_TRUE(bv::switchAgentOn("/usr/bin/bvprint").contains("cannot be written"));
    qunsetenv("XDG_CONFIG_HOME");
}

// Without a display "on" only writes the file.
TEST(AgentSwitch, KeepsOneAgentInASessionAndEndsItWithOff)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    const std::vector<std::string> environment = {"/usr/bin/env",
                                                  "-u",
                                                  "WAYLAND_DISPLAY",
                                                  "-u",
                                                  "DISPLAY",
                                                  "QT_QPA_PLATFORM=offscreen",
                                                  "CUPS_SERVER=" + folder.filePath("nobody").toStdString(),
                                                  "XDG_RUNTIME_DIR=" + folder.path().toStdString(),
                                                  "HOME=" + folder.path().toStdString()};
    const auto command = [&environment](const std::string &word, const std::string &session = {}) {
        std::vector<std::string> words = environment;
        if (!session.empty())
            words.push_back("DISPLAY=" + session);
        words.insert(words.end(), {kBvprint, "--agent", word});
        return words;
    };
    bvtest::ProgramUnderTest on(command("on"));
    EXPECT_EQ(on.wait(), 0);
    EXPECT_TRUE(QFile::exists(folder.filePath(".config/autostart/bvprint-agent.desktop")));
    bvtest::ProgramUnderTest first(command("run"));
    ASSERT_TRUE(QTest::qWaitFor([] { return bv::runningAgents().size() == 1; }, kPatience));
    bvtest::ProgramUnderTest second(command("run"));
    EXPECT_EQ(second.wait(), 2);
    bvtest::ProgramUnderTest elsewhere(command("run", ":9"));
    ASSERT_TRUE(QTest::qWaitFor([] { return bv::runningAgents().size() == 2; }, kPatience));
    EXPECT_TRUE(first.running());
    bvtest::ProgramUnderTest off(command("off"));
    EXPECT_EQ(off.wait(), 0);
    for (bvtest::ProgramUnderTest *agent : {&first, &elsewhere})
        EXPECT_EQ(agent->wait(), -1); // ended by a signal
    EXPECT_TRUE(bv::runningAgents().empty());
    qputenv("XDG_RUNTIME_DIR", before);
    EXPECT_FALSE(QFile::exists(folder.filePath(".config/autostart/bvprint-agent.desktop")));
}

} // namespace
