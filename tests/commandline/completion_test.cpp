// SPDX-License-Identifier: GPL-2.0-or-later
// The words for shells, and the shells' own completion with them.
#include "support/BatchProcess.h"
#include "support/PrivateCupsd.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::BatchProcess;
using bvtest::PrivateCupsd;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

const QString kFolder = QStringLiteral(BV_SOURCE_DIR "/resources/completion");

TEST(Completion, KnowsQueuesKeywordsAndChoicesAndDoesNotHangOnASilentServer)
{
    PrivateCupsd server;
    ASSERT_EQ(server.start().toStdString(), "");
    ASSERT_TRUE(server.addQueue("QL70", server.directPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
    BatchProcess program;
    program.setVariable("CUPS_SERVER", server.address());
    QDir(program.home()).mkdir(".cups");
    QFile file(program.home() + "/.cups/lpoptions");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dest QL70/Draft BVEconoMode=True\n");
    file.close();
    const auto words = [&](const char *what) {
        program.runToEnd({"-d", "QL70/Draft", "--complete", what});
        EXPECT_EQ(program.finish(), 0) << what;
        EXPECT_EQ(program.standardError(), "");
        return program.restOfOutput().toStdString();
    };
    EXPECT_EQ(words("queues"), "QL70\nQL70/Draft\n");
    EXPECT_EQ(words("bvquickcolor="), "General\nPhoto\nPresentation\nManual\n");
    EXPECT_THAT(words("media="), HasSubstr("A5\n"));
    EXPECT_THAT(words("keywords"), AllOf(HasSubstr("BVQuickColor=\n"), HasSubstr("sides=\n"), HasSubstr("copies=\n"),
                                         Not(HasSubstr("PageRegion"))));
    EXPECT_THAT(words("options"), AllOf(HasSubstr("--print\n"), HasSubstr("-o\n")));
    server.pause();
    // The usual limit is longer than finish() waits.
    program.runToEnd({"--complete", "queues"});
    EXPECT_EQ(program.finish(), 1);
    EXPECT_EQ(program.restOfOutput() + program.standardError(), "");
    server.goOn();
}

class ShellCompletion : public ::testing::TestWithParam<const char *>
{};

TEST_P(ShellCompletion, EndsWordsAsUsersTypeThem)
{
    const QString shell = QString::fromLatin1(GetParam());
    if (QStandardPaths::findExecutable(shell).isEmpty())
        GTEST_SKIP() << shell.toStdString() << " is not installed";
    const QString program = QStringLiteral("bvprint --ppd " BV_SOURCE_DIR "/resources/QL70.ppd ");
    const std::pair<const char *, const char *> rows[] = {
        {"-o BVQ", "BVQuickColor="},
        {"-o BVQuickColor=Ph", "BVQuickColor=Photo"},
        {"-o BVQuickColor=", "Presentation"},
        {"--option=BVQuickColor=Ph", "=Photo"},
        {"--summ", "--summary"},
        {"--print " BV_SOURCE_DIR "/LICEN", "/LICENSE"},
    };
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QStringLiteral(BV_BUILD_DIR "/bin:") + environment.value("PATH"));
    for (const auto &[typed, expected] : rows) {
        QProcess process;
        process.setProcessEnvironment(environment);
        if (shell == u"fish")
            process.start(shell, {"--no-config", "-c", ". " + kFolder + "/bvprint.fish; complete -C $argv[1]",
                                  program + QLatin1String(typed)});
        else
            process.start("python3", {BV_SOURCE_DIR "/tests/commandline/complete_in_shell.py", shell, kFolder,
                                      program + QLatin1String(typed), expected});
        ASSERT_TRUE(process.waitForFinished(60000));
        const std::string shown = process.readAllStandardOutput().toStdString();
        EXPECT_EQ(process.exitCode(), 0) << typed << shown;
        if (shell == u"fish") {
            EXPECT_THAT(shown, HasSubstr(expected)) << typed;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Shells, ShellCompletion, ::testing::Values("bash", "zsh", "fish"));

} // namespace
