// SPDX-License-Identifier: GPL-2.0-or-later
// bvprint --share-profiles with the built helper: who gets a list, and what was there stays.
#include "app/CommandLine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using ::testing::HasSubstr;

class ShareProfiles : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QProcess setUp;
        setUp.start(BV_SOURCE_DIR "/tools/demo-root", {m_root.path(), BV_BUILD_DIR});
        ASSERT_TRUE(setUp.waitForFinished() && setUp.exitCode() == 0) << setUp.readAllStandardError().constData();
        chmod(m_root.path().toLocal8Bit().constData(), 0755);
        m_self = QString::fromLocal8Bit(getpwuid(getuid())->pw_name);
        m_own = read(m_self);
        ASSERT_FALSE(m_own.isEmpty());
    }

    QString path(const QString &login, const char *kind = "") const
    {
        return m_root.path() + "/Library/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70/" + login +
               "-QL70-profile" + kind + ".plist";
    }
    QByteArray read(const QString &login, const char *kind = "") const
    {
        QFile file(path(login, kind));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // Returns the exit status. m_said has all that the program wrote.
    int share(const QStringList &arguments)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("BVCO_ROOT", m_root.path());
        environment.remove("SUDO_USER");
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(BV_BUILD_DIR "/bin/bvprint", QStringList{"--share-profiles"} + arguments);
        EXPECT_TRUE(program.waitForFinished(60000));
        m_said = QString::fromUtf8(program.readAll()).toStdString();
        return program.exitCode();
    }

    QTemporaryDir m_root;
    QString m_self;
    QByteArray m_own;
    std::string m_said;
};

TEST_F(ShareProfiles, GivesOnlyWhatTheHelperAllowsAndKeepsWhatIsThere)
{
    EXPECT_EQ(share({"no-such-user"}), 1);
    EXPECT_THAT(m_said, HasSubstr("no-such-user: there is no such user"));
    EXPECT_EQ(share({"--from", "no-such-user", m_self}), 2);
    EXPECT_THAT(m_said, HasSubstr("There is no user \"no-such-user\""));
    EXPECT_EQ(share({"--from", "daemon", m_self}), 2);
    EXPECT_THAT(m_said, HasSubstr("daemon has no list of profiles yet"));
    if (getuid() != 0) {
        EXPECT_EQ(share({"daemon"}), 1);
        EXPECT_THAT(m_said, HasSubstr("daemon: refused: only root"));
        EXPECT_FALSE(QFile::exists(path("daemon")));
        return;
    }
    EXPECT_EQ(share({"daemon", "bin"}), 0) << m_said;
    // The same entries; the text may be laid out in another way.
    const QByteArray given = read("daemon");
    for (const char *name : {"Office sRGB", "MONITOR.ICC", "House Offset, Coated", "GLOSSY.ICC"})
        EXPECT_EQ(given.count(name), m_own.count(name)) << name;
    struct stat status = {};
    ASSERT_EQ(stat(path("bin").toLocal8Bit().constData(), &status), 0);
    EXPECT_EQ(status.st_uid, getpwnam("bin")->pw_uid);
    EXPECT_EQ(status.st_mode & 07777, 0644U);
    // Someone with a list keeps it, and the others get theirs all the same.
    const QByteArray other = read("bin").replace("Office sRGB", "Of bin");
    QFile list(path("bin"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly) && list.write(other) == other.size());
    list.close();
    EXPECT_EQ(share({"bin", "games"}), 1);
    EXPECT_THAT(m_said, HasSubstr("bin: has a list already"));
    EXPECT_EQ(read("bin"), other);
    EXPECT_EQ(read("games"), given);
    EXPECT_EQ(share({"--replace", "--from", "games", "bin"}), 0) << m_said;
    EXPECT_EQ(read("bin"), given);
    EXPECT_EQ(read("bin", ".prev"), other);
}

TEST(ShareProfilesLine, NeedsUsersAndStandsAlone)
{
    for (const QStringList &wrong : {QStringList{"--share-profiles"},
                                     {"--replace", "a.pdf"},
                                     {"--from", "x", "a.pdf"},
                                     {"--share-profiles", "--batch", "-", "bob"}})
        EXPECT_FALSE(bv::parseCommandLine(wrong)) << wrong.join(u' ').toStdString();
}

} // namespace
