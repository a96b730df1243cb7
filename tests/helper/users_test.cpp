// SPDX-License-Identifier: GPL-2.0-or-later
// Two users of one group, and root, in one folder. Needs root, because only root can act as other users.
#include "helper/HelperFixture.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bvtest {

namespace {

constexpr uid_t kNamelessUser = 60011; // not in the password database

} // namespace

// Alice and Bob stand for two accounts that every Debian system has.
class Users : public HelperTest
{
protected:
    void SetUp() override
    {
        if (!m_isRoot)
            GTEST_SKIP() << "needs root, which alone can become another user";
        for (User *user : {&m_alice, &m_bob}) {
            const passwd *entry = getpwnam(user->login.c_str());
            ASSERT_TRUE(entry) << user->login;
            user->as.user = entry->pw_uid;
            // Other users may have no access to the build folder.
            user->as.program = m_root + "/QL70Helper";
        }
        placeHelper(m_alice.as.program, 0755);
    }

    struct User
    {
        std::string login;
        RunOptions as;
    };

    static void placeHelper(const std::string &path, mode_t mode)
    {
        std::filesystem::copy_file(BV_BUILD_DIR "/bin/QL70Helper", path);
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
    }

    bool writes(const User &user, const std::string &login, const std::string &text) const
    {
        return answers(true, {kPiece, url(login), text}, user.as) && answers(true, {kCommit, url(login)}, user.as);
    }

    uid_t ownerOf(const std::string &logical) const
    {
        struct stat status = {};
        return lstat(real(logical).c_str(), &status) == 0 ? status.st_uid : static_cast<uid_t>(-1);
    }

    User m_alice{"daemon", {}};
    User m_bob{"bin", {}};
    const User m_superuser{"root", {}};
};

TEST_F(Users, GroupMembersWriteOnlyTheirOwnLists)
{
    ASSERT_TRUE(writes(m_alice, m_alice.login, listText("alice")));
    ASSERT_TRUE(writes(m_bob, m_bob.login, listText("bob")));
    EXPECT_EQ(ownerOf(currentPath(m_alice.login)), *m_alice.as.user);
    const std::string path = currentPath(m_alice.login);
    EXPECT_TRUE(answers(false, {kAdmin, path}, m_bob.as));
    EXPECT_TRUE(answers(false, {kExist, path}, m_bob.as));
    EXPECT_TRUE(answers(false, {kRemove, path}, m_bob.as));
    EXPECT_TRUE(answers(false, {kSwap, "2", path, previousPath(m_alice.login)}, m_bob.as));
    EXPECT_TRUE(answers(false, {kSwap, "2", currentPath(m_bob.login), previousPath(m_alice.login)}, m_bob.as));
    EXPECT_TRUE(answers(false, {kPiece, url(m_alice.login), listText("bob")}, m_bob.as));
    ASSERT_TRUE(answers(true, {kPiece, url(m_alice.login), listText("alice 2")}, m_alice.as));
    EXPECT_TRUE(answers(false, {kCommit, url(m_alice.login)}, m_bob.as));
    EXPECT_TRUE(answers(true, {kCommit, url(m_alice.login)}, m_alice.as));
    EXPECT_EQ(contents(path), listText("alice 2"));
    EXPECT_EQ(contents(currentPath(m_bob.login)), listText("bob"));
}

TEST_F(Users, AnotherUsersFileInTheWayIsNotTouched)
{
    for (const std::string &path : {currentPath(m_alice.login), currentPath(m_alice.login) + ".part",
                                    previousPath(m_alice.login), currentPath(m_alice.login) + ".copy"}) {
        ASSERT_TRUE(writes(m_alice, m_alice.login, listText("alice")));
        put(path, "planted");
        ASSERT_EQ(chown(real(path).c_str(), *m_bob.as.user, 0), 0);
        ASSERT_EQ(chmod(real(path).c_str(), 0666), 0);
        if (path.ends_with(".part")) {
            // The one thing in the folder that another member can stop. The log says who did.
            const std::string errors = run({kPiece, url(m_alice.login), "<?xml"}, m_alice.as).errors;
            EXPECT_NE(errors.find(m_alice.login + "-QL70-profile.plist.part"), std::string::npos) << errors;
            EXPECT_NE(errors.find("id " + std::to_string(*m_bob.as.user)), std::string::npos) << errors;
        }
        if (path == currentPath(m_alice.login)) {
            EXPECT_TRUE(answers(false, {kExist, path}, m_alice.as));
            EXPECT_TRUE(answers(false, {kRemove, path}, m_alice.as));
        }
        if (path.ends_with("profile.plist") || path.ends_with(".part"))
            EXPECT_FALSE(writes(m_alice, m_alice.login, listText("alice"))) << path;
        else
            EXPECT_TRUE(
                answers(false, {kSwap, "2", currentPath(m_alice.login), previousPath(m_alice.login)}, m_alice.as))
                << path;
        EXPECT_EQ(contents(path), "planted");
        EXPECT_EQ(ownerOf(path), *m_bob.as.user);
        unlink(real(path).c_str());
    }
}

TEST_F(Users, NobodyElseCanHoldUpAWriter)
{
    ASSERT_TRUE(writes(m_alice, m_alice.login, listText("old")));
    ASSERT_TRUE(answers(true, {kPiece, url(m_alice.login), listText("new")}, m_alice.as));
    // Everything that Bob can open and lock, and a request of his own that does not end.
    auto hanging = std::async(std::launch::async, [this] {
        RunOptions options = waitingBefore("write");
        chmod(real("/gate").c_str(), 0666);
        options.user = m_bob.as.user;
        options.program = m_bob.as.program;
        return run({kPiece, url(m_bob.login), listText("bob")}, options).exitCode;
    });
    waitingBefore("write");
    const int gate = open(real("/gate").c_str(), O_WRONLY | O_CLOEXEC);
    int ready[2];
    ASSERT_EQ(pipe2(ready, O_CLOEXEC), 0);
    const pid_t outsider = fork();
    if (outsider == 0) {
        if (setgid(*m_bob.as.user) != 0 || setuid(*m_bob.as.user) != 0)
            _exit(1);
        flock(open(folder().c_str(), O_RDONLY), LOCK_EX);
        for (const auto &entry : std::filesystem::directory_iterator(folder())) {
            struct flock whole = {};
            for (const short kind : {F_RDLCK, F_WRLCK}) {
                whole.l_type = kind;
                fcntl(open(entry.path().c_str(), kind == F_RDLCK ? O_RDONLY : O_RDWR), F_OFD_SETLK, &whole);
            }
        }
        [[maybe_unused]] const ssize_t told = write(ready[1], "", 1);
        pause();
    }
    char byte;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const std::string path = currentPath(m_alice.login);
    RunOptions impatient = m_alice.as;
    impatient.environment.merge(with("none:0:NONE").environment);
    impatient.environment["FAULT_CLOCK"] = "1";
    EXPECT_TRUE(answers(true, {kPiece, url(m_alice.login), " "}, impatient));
    EXPECT_TRUE(answers(true, {kCommit, url(m_alice.login)}, impatient));
    EXPECT_TRUE(answers(true, {kSwap, "2", path, previousPath(m_alice.login)}, impatient));
    EXPECT_TRUE(answers(true, {kRemove, path}, impatient));
    EXPECT_EQ(contents(previousPath(m_alice.login)), listText("new") + " ");
    kill(outsider, SIGKILL);
    waitpid(outsider, nullptr, 0);
    close(ready[0]);
    close(ready[1]);
    close(gate);
    EXPECT_EQ(hanging.get(), 0);

    // A file that another user could lock was not made by the helper; it is not waited for.
    put(path + ".part", "planted");
    ASSERT_EQ(chown(real(path + ".part").c_str(), *m_alice.as.user, 0), 0);
    const int lock = open(real(path + ".part").c_str(), O_RDONLY | O_CLOEXEC);
    struct flock reading = {};
    reading.l_type = F_RDLCK;
    ASSERT_EQ(fcntl(lock, F_OFD_SETLK, &reading), 0);
    EXPECT_TRUE(writes(m_alice, m_alice.login, listText("again")));
    close(lock);
}

TEST_F(Users, RootWritesForAnyUserInThePasswordDatabase)
{
    ASSERT_TRUE(writes(m_superuser, m_alice.login, listText("by root")));
    EXPECT_EQ(ownerOf(currentPath(m_alice.login)), *m_alice.as.user);
    ASSERT_TRUE(writes(m_alice, m_alice.login, listText("by alice")));
    ASSERT_TRUE(answers(true, {kSwap, "2", currentPath(m_alice.login), previousPath(m_alice.login)}));
    EXPECT_EQ(ownerOf(previousPath(m_alice.login)), *m_alice.as.user);
    EXPECT_TRUE(answers(false, {kSwap, "2", currentPath(m_alice.login), previousPath(m_bob.login)}));

    // A sequence that root gave up does not block the user's own.
    ASSERT_TRUE(answers(true, {kPiece, url(m_alice.login), "<?xml"}));
    EXPECT_TRUE(writes(m_alice, m_alice.login, listText("again")));
    EXPECT_TRUE(answers(true, {kRemove, currentPath(m_alice.login)}));

    for (const std::string &login : {std::string("no-such-user"), std::string("../daemon"), std::string("x/../daemon")})
        EXPECT_TRUE(answers(false, {kAdmin, currentPath(login)})) << login;
    put(currentPath(m_alice.login), "bob's");
    ASSERT_EQ(chown(real(currentPath(m_alice.login)).c_str(), *m_bob.as.user, 0), 0);
    EXPECT_TRUE(answers(false, {kRemove, currentPath(m_alice.login)}));
}

TEST_F(Users, LoginNamesMustMatchExactly)
{
    RunOptions anyCase = with("none:0:NONE");
    anyCase.environment["FAULT_LOGINS"] = "1";
    EXPECT_TRUE(answers(true, {kAdmin, currentPath("daemon")}, anyCase));
    EXPECT_TRUE(answers(false, {kAdmin, currentPath("Daemon")}, anyCase));

    std::filesystem::copy_file(BV_BUILD_DIR "/bin/QL70Walk", m_root + "/QL70Walk");
    ASSERT_EQ(chmod((m_root + "/QL70Walk").c_str(), 0755), 0);
    std::vector<std::string> walk = walkRequest();
    walk[2] = m_alice.login;
    EXPECT_EQ(run(walk, m_alice.as).output, "mibwalk_XPC=iRet=1\n");
    for (const char *login : {"bin", "daemo", "daemons", "Daemon", ""}) {
        walk[2] = login;
        EXPECT_TRUE(answers(false, walk, m_alice.as)) << login;
    }
}

TEST_F(Users, UsersOutsideTheGroupOrWithoutANameMayNotWrite)
{
    ASSERT_TRUE(writes(m_superuser, m_alice.login, listText("by root")));
    ASSERT_EQ(chown(folder().c_str(), 0, 0), 0);
    EXPECT_TRUE(answers(false, {kAdmin, currentPath(m_alice.login)}, m_alice.as));
    EXPECT_TRUE(answers(true, {kExist, currentPath(m_alice.login)}, m_alice.as));
    EXPECT_TRUE(answers(false, {kPiece, url(m_alice.login), listText("alice")}, m_alice.as));
    EXPECT_TRUE(answers(false, {kRemove, currentPath(m_alice.login)}, m_alice.as));

    ASSERT_EQ(chmod(folder().c_str(), 01777), 0);
    RunOptions nameless = m_alice.as;
    nameless.user = kNamelessUser;
    for (const char *login : {"", "daemon", "60011"}) {
        EXPECT_TRUE(answers(false, {kAdmin, currentPath(login)}, nameless)) << login;
        EXPECT_TRUE(answers(false, {kPiece, url(login), listText("x")}, nameless)) << login;
    }
}

TEST_F(Users, ASetIdHelperUsesOnlyItsCallersRightsAndNoEnvironment)
{
    RunOptions options = m_alice.as;
    options.program = m_root + "/set-id";
    struct statvfs mounted = {};
    if (statvfs(m_root.c_str(), &mounted) == 0 && (mounted.f_flag & ST_NOSUID))
        GTEST_SKIP() << "needs a folder for temporary files where set-id programs work";
    placeHelper(options.program, 06755);
    // Without BVCO_ROOT the helper uses the system's own folder, and this user may not write there.
    EXPECT_TRUE(answers(false, {kAdmin, currentPath(m_alice.login)}, options));
    EXPECT_TRUE(answers(false, {kPiece, url(m_alice.login), listText("x")}, options));
    EXPECT_EQ(names(), "");
    // The program that runs the walk has no additional rights either.
    put("/QL70Walk", "#!/usr/bin/python3\nimport os\n"
                     "print({*os.getresuid()} == {os.getuid()}, {*os.getresgid()} == {os.getgid()}, os.getuid() != 0, "
                     "'BVCO_ROOT' in os.environ)\n");
    ASSERT_EQ(chmod(real("/QL70Walk").c_str(), 0755), 0);
    std::vector<std::string> walk = walkRequest();
    walk[2] = m_alice.login;
    EXPECT_EQ(run(walk, options).output, "True True True False\n");
}

} // namespace bvtest
