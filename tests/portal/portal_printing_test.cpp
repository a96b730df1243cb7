// SPDX-License-Identifier: GPL-2.0-or-later
// Printing through the portal with windows on a display of its own: settings, tokens and jobs, by a client of ours and
// by a GTK program with the desktop's real portal in between.
#include "PortalWorld.h"

#include <QElapsedTimer>

using namespace bvtest;

namespace {

class PortalPrinting : public PortalWorld
{
protected:
    void SetUp() override
    {
        for (const char *program : {"Xvfb", "xdotool"})
            if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
                GTEST_SKIP() << "needs the program " << program;
        m_display.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp", "-noreset"});
        ASSERT_TRUE(m_display.waitForReadyRead(kPatience));
        environment.insert("DISPLAY", u':' + QString::fromUtf8(m_display.readLine()).trimmed());
        environment.remove("WAYLAND_DISPLAY");
    }

    void TearDown() override
    {
        PortalWorld::TearDown();
        m_display.terminate();
        m_display.waitForFinished();
    }

    QByteArray xdotool(const QStringList &words)
    {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start("xdotool", words);
        program.waitForFinished();
        return program.readAllStandardOutput().trimmed();
    }

    // Presses Return, the key of the dialog's Print button, until the condition holds. The button is greyed, and the
    // key does nothing, until the printer's options are there.
    template <typename Condition> bool printUntil(Condition condition)
    {
        constexpr int kPauseMilliseconds = 500;
        QElapsedTimer timer;
        timer.start();
        while (!condition()) {
            if (timer.elapsed() > kPatience)
                return false;
            xdotool({"mousemove", "300", "300", "key", "Return"});
            if (QTest::qWaitFor(condition, kPauseMilliseconds))
                return true;
        }
        return true;
    }
    bool printUntilAnswered(const QDBusPendingCall &call)
    {
        return printUntil([&call] { return call.isFinished(); });
    }

    QProcess m_display;
};

TEST_F(PortalPrinting, AgreesOnSettingsAndPrintsWithTheTokenOnce)
{
    start("xcb");
    if (IsSkipped() || HasFatalFailure())
        return;
    startBus();
    const QVariantMap settings{{"printer", "QL70"},       {"n-copies", "2"},    {"duplex", "horizontal"},
                               {"print-pages", "ranges"}, {"page-ranges", "0"}, {"cups-BVQuickColor", "Photo"},
                               {"number-up", "4"}};
    // The window that the dialog belongs to does not exist.
    const QDBusPendingCall prepared = prepare("a", settings, "org.app", {{"accept_label", "_Go"}}, "x11:7fffffff");
    ASSERT_TRUE(printUntilAnswered(prepared));
    EXPECT_EQ(response(prepared), 0U);
    const auto agreed = qdbus_cast<QVariantMap>(results(prepared).value("settings"));
    EXPECT_EQ(agreed.value("printer"), "QL70");
    EXPECT_EQ(agreed.value("n-copies"), "1");
    EXPECT_EQ(agreed.value("print-pages"), "all");
    EXPECT_EQ(agreed.value("duplex"), "horizontal");
    EXPECT_EQ(agreed.value("cups-BVQuickColor"), "Photo");
    EXPECT_FALSE(agreed.contains("number-up"));
    EXPECT_EQ(qdbus_cast<QVariantMap>(results(prepared).value("page-setup")).value("Width"), 210.0);
    const QVariant token = results(prepared).value("token");
    EXPECT_EQ(token.typeId(), QMetaType::UInt);
    EXPECT_EQ(jobs(), 0U);

    // Nobody else can use the token.
    const auto file = document("one page\n");
    const QDBusPendingCall other = print("b", file->handle(), {{"token", token}}, "org.other");
    EXPECT_TRUE(waitForDialogs(1));
    close("b");
    EXPECT_EQ(response(other), 2U);
    EXPECT_TRUE(waitForDialogs(0));
    EXPECT_EQ(jobs(), 0U);

    EXPECT_EQ(response(print("c", file->handle(), {{"token", token}})), 0U);
    const auto states = PrivateCupsd::jobStates("QL70");
    ASSERT_EQ(states.size(), 1U);
    RecordedJob got = m_server.recorded(states.begin()->first);
    EXPECT_EQ(got.data, "one page\n");
    EXPECT_EQ(got.arguments[2], "My job");
    EXPECT_EQ(got.arguments[3], "2");
    EXPECT_EQ(got.options["page-ranges"].toStdString(), "1");
    EXPECT_EQ(got.options["BVQuickColor"].toStdString(), "Photo");
    EXPECT_EQ(got.options["BVTextGrayTreatment"].toStdString(), "FourColor");
    EXPECT_EQ(got.options["Duplex"].toStdString(), "DuplexNoTumble");

    // Used up: the user is asked, and may print all the same.
    const QDBusPendingCall again = print("d", file->handle(), {{"token", token}}, "org.app", "Second/job");
    ASSERT_TRUE(printUntilAnswered(again));
    EXPECT_EQ(response(again), 0U);
    ASSERT_EQ(jobs(), 2U);
    EXPECT_EQ(m_server.recorded(PrivateCupsd::jobStates("QL70").rbegin()->first).arguments[2], "Second/job");
}

TEST_F(PortalPrinting, AnAgreedJobThatCannotBeSentComesBackInTheDialog)
{
    start("xcb");
    if (IsSkipped() || HasFatalFailure())
        return;
    startBus();
    const QDBusPendingCall prepared = prepare("a", {{"printer", "QL70"}, {"n-copies", "3"}});
    ASSERT_TRUE(printUntilAnswered(prepared));
    ASSERT_TRUE(m_server.administer("cupsreject", {"QL70"}));
    const auto file = document("one page\n");
    const QDBusPendingCall printed = print("b", file->handle(), {{"token", results(prepared).value("token")}});
    EXPECT_TRUE(QTest::qWaitFor([this] { return !xdotool({"search", "--name", "My job"}).isEmpty(); }, kPatience));
    EXPECT_EQ(jobs(), 0U);
    ASSERT_TRUE(m_server.administer("cupsaccept", {"QL70"}));
    // The dialog's printer list is as old as the dialog; canceled, it prints nothing.
    close("b");
    EXPECT_EQ(response(printed), 2U);
    EXPECT_EQ(jobs(), 0U);
}

// The user switches the back end on, and the bus starts the real portal accordingly.
TEST_F(PortalPrinting, AGtkProgramPrintsThroughTheRealPortal)
{
    if (!QFile::exists("/usr/libexec/xdg-desktop-portal"))
        GTEST_SKIP() << "needs the package xdg-desktop-portal";
    QProcess python;
    python.start("/usr/bin/python3",
                 {"-c", "import gi, cairo; gi.require_version('Gtk', '3.0'); from gi.repository import Gtk"});
    if (!python.waitForFinished(kPatience) || python.exitCode() != 0)
        GTEST_SKIP() << "needs the packages python3-gi-cairo and gir1.2-gtk-3.0";
    start("xcb", true);
    if (IsSkipped() || HasFatalFailure())
        return;
    QProcess portal;
    portal.setProcessEnvironment(environment);
    portal.start(BV_BUILD_DIR "/bin/bvportal", {"on"});
    ASSERT_TRUE(portal.waitForFinished(kPatience));
    EXPECT_EQ(portal.exitCode(), 0) << portal.readAllStandardError().toStdString();
    // The portal needs it for files only, and it would mount a file system.
    write("data/dbus-1/services/org.freedesktop.portal.Documents.service",
          "[D-BUS Service]\nName=org.freedesktop.portal.Documents\nExec=/bin/false\n");
    environment.insert("GTK_USE_PORTAL", "1");
    environment.insert("GDK_BACKEND", "x11");
    startBus();
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start("/usr/bin/python3",
                  {BV_SOURCE_DIR "/tests/portal/gtk_program.py", "QL70", "3", "n-copies=2", "print-pages=ranges",
                   "page-ranges=1-2", "cups-BVQuickColor=Manual", "cups-BVTextEdgeEnhance=Off"});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(printUntil([&program] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.readAllStandardOutput().trimmed(), "APPLY");
    EXPECT_TRUE(m_desktopsOwn->calls.isEmpty());
    // The program ended before its job was sent.
    ASSERT_TRUE(QTest::qWaitFor([this] { return jobs() == 1; }, kPatience));
    const auto states = PrivateCupsd::jobStates("QL70");
    const RecordedJob got = m_server.recorded(states.begin()->first);
    EXPECT_TRUE(got.data.contains("<</DeviceRenderingInfo<</Type 70/BVTextEdgeEnhance/Off>>>>setpagedevice"));
    // Two of the three pages; the copies are the printer's own.
    EXPECT_EQ(got.data.count("\n%%Page: "), 2) << got.data.size();
    EXPECT_EQ(got.arguments[3], "2");
    EXPECT_TRUE(got.data.contains("numcopies(2)")) << got.data.left(3000).toStdString();

    // Switched off, the same program gets the desktop's own dialog from the next start on.
    portal.start(BV_BUILD_DIR "/bin/bvportal", {"off"});
    ASSERT_TRUE(portal.waitForFinished(kPatience));
    EXPECT_EQ(portal.exitCode(), 0);
    EXPECT_FALSE(QFile::exists(m_folder.filePath("data/dbus-1/services/org.freedesktop.portal.Desktop.service")));
}

} // namespace
