// SPDX-License-Identifier: GPL-2.0-or-later
// Tokens, and the desktop's own back end.
#include "portal/DesktopBackend.h"
#include "portal/Tokens.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace bv;

namespace {

TEST(PortalTokens, WorkOnceForTheirClientAndForAnHour)
{
    Tokens tokens;
    const PortalClient one{"org.one", "1_1"};
    const auto now = Tokens::Clock::now();
    const uint token = tokens.add(one, {{"QL70", {}}, {}}, now);
    EXPECT_NE(token, 0U);
    EXPECT_FALSE(tokens.take(token, {"org.two", "1_1"}, now));
    EXPECT_FALSE(tokens.take(token, {"org.one", "1_2"}, now));
    EXPECT_FALSE(tokens.take(token + 1, one, now));
    const auto got = tokens.take(token, one, now);
    ASSERT_TRUE(got);
    EXPECT_EQ(got->job.queue, "QL70");
    EXPECT_FALSE(tokens.take(token, one, now));
    const uint late = tokens.add(one, {}, now);
    EXPECT_FALSE(tokens.isEmpty(now + Tokens::kLifetime - std::chrono::seconds(1)));
    EXPECT_FALSE(tokens.take(late, one, now + Tokens::kLifetime));
    EXPECT_TRUE(tokens.isEmpty(now + Tokens::kLifetime));
}

TEST(PortalTokens, OfOneClientPushOutItsOwnOnly)
{
    Tokens tokens;
    const uint others = tokens.add({"b", "2"}, {});
    const uint first = tokens.add({"a", "1"}, {});
    for (size_t i = 0; i < Tokens::kMostOfClient; ++i)
        tokens.add({"a", "1"}, {});
    EXPECT_FALSE(tokens.take(first, {"a", "1"}));
    EXPECT_TRUE(tokens.take(others, {"b", "2"}));
}

TEST(DesktopsBackend, IsTheFirstDesktopsThenAnyButNeverOurs)
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char *file, const QByteArray &text) {
        QFile out(folder.filePath(QLatin1String(file)));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write("[portal]\n" + text);
    };
    EXPECT_EQ(desktopBackend(folder.path(), "GNOME"), "");
    write("a.portal", "DBusName=ours.is.next\nInterfaces=org.freedesktop.impl.portal.Access;\nUseIn=gnome\n");
    write("b.portal", "DBusName=org.freedesktop.impl.portal.desktop.bvprint\n"
                      "Interfaces=org.freedesktop.impl.portal.Print;\nUseIn=bvprint;gnome\n");
    EXPECT_EQ(desktopBackend(folder.path(), "bvprint:GNOME"), "");
    write("c.portal", "DBusName=org.c\nInterfaces=org.freedesktop.impl.portal.Print;\nUseIn=gnome;mate\n");
    write("k.portal", "DBusName=org.k\r\nInterfaces=x;org.freedesktop.impl.portal.Print\r\nUseIn=KDE\r\n");
    EXPECT_EQ(desktopBackend(folder.path(), "bvprint:ubuntu:GNOME"), "org.c");
    EXPECT_EQ(desktopBackend(folder.path(), "kde:gnome"), "org.k");
    EXPECT_EQ(desktopBackend(folder.path(), "sway"), "org.c");
    EXPECT_EQ(desktopBackend(folder.path(), ""), "org.c");
}

} // namespace
