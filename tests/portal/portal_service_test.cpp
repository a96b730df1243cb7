// SPDX-License-Identifier: GPL-2.0-or-later
// The service on the bus: what goes to the desktop's own back end, how requests end, and bad calls. No display is
// needed.
#include "PortalWorld.h"

#include <QStandardPaths>
#include <fcntl.h>
#include <unistd.h>

using namespace bvtest;

namespace {

class PortalService : public PortalWorld
{
protected:
    void SetUp() override
    {
        start("offscreen");
        if (!IsSkipped() && !HasFatalFailure())
            startBus();
    }
};

TEST_F(PortalService, LeavesQueuesWithoutThePanelToTheDesktop)
{
    m_desktopsOwn->results = {{"settings", QVariantMap{{"printer", "Plain"}, {"n-copies", "2"}}},
                              {"page-setup", QVariantMap{{"Width", 210.0}}},
                              {"token", 77U}};
    const QVariantMap settings{{"printer", "Plain"}, {"duplex", "simplex"}};
    const QDBusPendingCall prepared = prepare("a", settings, "org.app", {{"modal", false}}, "x11:1");
    EXPECT_EQ(response(prepared), 0U);
    ASSERT_EQ(m_desktopsOwn->calls.size(), 1);
    const QVariantList got = m_desktopsOwn->calls[0].arguments();
    EXPECT_EQ(got[0].value<QDBusObjectPath>().path(), handle("1_9", "a"));
    EXPECT_EQ(got[1], "org.app");
    EXPECT_EQ(got[2], "x11:1");
    EXPECT_EQ(got[3], "A title");
    EXPECT_EQ(qdbus_cast<QVariantMap>(got[4]), settings);
    EXPECT_EQ(qdbus_cast<QVariantMap>(got[6]), (QVariantMap{{"modal", false}}));
    EXPECT_EQ(qdbus_cast<QVariantMap>(results(prepared).value("settings")),
              qdbus_cast<QVariantMap>(m_desktopsOwn->results["settings"]));
    EXPECT_EQ(qdbus_cast<QVariantMap>(results(prepared).value("page-setup")).value("Width"), 210.0);
    EXPECT_EQ(results(prepared).value("token"), 77U);

    // Its token goes to it, with the document; another program's does not.
    const auto file = document("a page");
    EXPECT_EQ(response(print("b", file->handle(), {{"token", 77U}})), 0U);
    ASSERT_EQ(m_desktopsOwn->calls.size(), 2);
    const auto passed = m_desktopsOwn->calls[1].arguments()[4].value<QDBusUnixFileDescriptor>();
    char bytes[16] = {};
    EXPECT_EQ(pread(passed.fileDescriptor(), bytes, sizeof bytes, 0), 6);
    EXPECT_EQ(jobs(), 0U);
    EXPECT_EQ(dialogs(), 0);

    m_desktopsOwn->isSlow = true;
    QObject request;
    auto *adaptor = new DesktopsRequest(&request);
    connection().registerObject(handle("1_9", "c"), &request);
    const QDBusPendingCall closed = prepare("c", settings);
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_desktopsOwn->calls.size() == 3; }, kPatience));
    close("c");
    EXPECT_EQ(response(closed), 2U);
    EXPECT_TRUE(QTest::qWaitFor([adaptor] { return adaptor->closed == 1; }, kPatience));
    connection().unregisterObject(handle("1_9", "c"));
}

TEST_F(PortalService, ShowsItsOwnDialogWhereTheDesktopHasNone)
{
    connection().unregisterService(QLatin1String(kDesktopsName));
    const QDBusPendingCall prepared = prepare("a", {{"printer", "Plain"}});
    // The process that decided, then the one that shows the dialog.
    QTest::qWait(500);
    EXPECT_TRUE(waitForDialogs(1));
    EXPECT_FALSE(prepared.isFinished());
    close("a");
    EXPECT_EQ(response(prepared), 2U);
    EXPECT_TRUE(waitForDialogs(0));
    EXPECT_TRUE(waitForEnd());
}

TEST_F(PortalService, ServesSeveralRequestsAndEndsWhenIdle)
{
    const QDBusPendingCall one = prepare("a", {{"printer", "QL70"}});
    const QDBusPendingCall two = prepare("b", {}, "org.other");
    EXPECT_TRUE(waitForDialogs(2));
    // A handle that is in use, and a stranger that wants to close one.
    EXPECT_EQ(response(prepare("a", {})), 2U);
    connection("stranger");
    close("a", "stranger");
    // A program that leaves the bus.
    call("PreparePrint",
         {QVariant::fromValue(QDBusObjectPath(handle("1_7", "x"))), "", "", "", QVariantMap(), QVariantMap(),
          QVariantMap()},
         "stranger");
    EXPECT_TRUE(waitForDialogs(3));
    QDBusConnection::disconnectFromBus("stranger");
    EXPECT_TRUE(waitForDialogs(2));
    EXPECT_FALSE(one.isFinished());
    close("b");
    EXPECT_EQ(response(two), 2U);
    EXPECT_TRUE(waitForDialogs(1));
    close("a");
    EXPECT_EQ(response(one), 2U);
    EXPECT_TRUE(waitForEnd());
    EXPECT_TRUE(m_desktopsOwn->calls.isEmpty());
    EXPECT_EQ(jobs(), 0U);
}

TEST_F(PortalService, RefusesWhatIsNoDocumentAndAsksAboutUnknownTokens)
{
    const int device = open("/dev/zero", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(response(print("a", device)), 2U);
    ::close(device);
    const auto file = document("a page");
    ASSERT_EQ(ftruncate(file->handle(), 3LL << 30), 0);
    EXPECT_EQ(response(print("b", file->handle())), 2U);
    // Neither an unknown token nor one of a wrong type prints by itself.
    int last = 0;
    const auto small = document("a page");
    for (const QVariant &token : {QVariant(4711U), QVariant("4711"), QVariant(QVariantMap{{"a", 1}})}) {
        const QDBusPendingCall asked = print(QStringLiteral("t%1").arg(++last), small->handle(), {{"token", token}});
        EXPECT_TRUE(waitForDialogs(1));
        close(QStringLiteral("t%1").arg(last));
        EXPECT_EQ(response(asked), 2U);
        EXPECT_TRUE(waitForDialogs(0));
    }
    // Values of wrong types, a label and a window that do not exist.
    const QDBusPendingCall odd =
        prepare("o", {{"n-copies", 3}, {"printer", QVariantMap{{"a", 1}}}, {"page-ranges", QByteArray("x")}}, "org.app",
                {{"modal", "yes"}, {"accept_label", 7}}, "wayland:nowhere");
    EXPECT_TRUE(waitForDialogs(1));
    EXPECT_FALSE(odd.isFinished());
    close("o");
    EXPECT_EQ(response(odd), 2U);
    EXPECT_EQ(jobs(), 0U);
}

} // namespace
