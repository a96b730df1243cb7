// SPDX-License-Identifier: GPL-2.0-or-later
// The program's environment: displays, locales, streams that cannot be written, and programs started by the pane.
#include "support/BatchProcess.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <unistd.h>

namespace {

using bvtest::BatchProcess;
using ::testing::HasSubstr;

const QStringList kOurPane = {"--ppd", BV_SOURCE_DIR "/resources/QL70.ppd"};
const QStringList kSmallPanel = {"--plugin", BV_BUILD_DIR "/tests/testpanel.so", "--ppd",
                                 BV_SOURCE_DIR "/tests/support/small.ppd"};
constexpr char kNoSuchDisplay[] = ":59321";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Surroundings, AWindowThatCannotOpenSaysWhyInOneLineAndNamesTheBatch)
{
    const std::pair<const char *, const char *> rows[] = {{"", "There is no display"},
                                                          {kNoSuchDisplay, "could not connect to display :59321"}};
    for (const auto &[display, reason] : rows) {
        BatchProcess window;
        window.setVariable("DISPLAY", display);
        window.runToEnd(kOurPane + QStringList{"report.pdf"});
        EXPECT_EQ(window.finish(), 2) << reason;
        const std::string said = window.standardError().toStdString();
        EXPECT_THAT(said, HasSubstr(reason));
        EXPECT_THAT(said, HasSubstr("--batch"));
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    }
}

TEST(Surroundings, ABatchNeedsNoDisplayThatAnswers)
{
    BatchProcess batch;
    batch.setVariable("DISPLAY", kNoSuchDisplay);
    batch.setVariable("WAYLAND_DISPLAY", "no-such-display");
    batch.setVariable("XDG_RUNTIME_DIR", batch.home());
    batch.start(kSmallPanel);
    EXPECT_EQ(batch.result("panelView"), "paperView");
    EXPECT_EQ(batch.finish(), 0);
    EXPECT_EQ(batch.standardError(), "");
}

TEST(Surroundings, OnlyABatchShowsTheKeysOfTextsAndOnlyInTheLocaleC)
{
    struct Row
    {
        const char *all;
        const char *lang;
        bool isBatch;
        const char *language;
    };
    const Row rows[] = {{"", "", true, "en"},         {"C", "de_DE.UTF-8", true, ""}, {"", "C.UTF-8", true, ""},
                        {"", "fr_FR", true, "fr_FR"}, {"C", "", false, "en"},         {"", "", false, "en"}};
    for (const auto &[all, lang, isBatch, language] : rows) {
        BatchProcess program;
        const QString log = program.home() + "/log";
        program.setVariable("TESTPANEL_LOG", log);
        program.setVariable("LC_ALL", all);
        program.setVariable("LC_MESSAGES", "");
        program.setVariable("LANG", lang);
        program.runToEnd(kSmallPanel + (isBatch ? QStringList{"--batch", "/dev/null"}
                                                : QStringList{"--screenshot", program.home() + "/picture.png"}));
        EXPECT_EQ(program.finish(), 0);
        EXPECT_EQ(contents(log).split('\n').first(), QByteArray("initWithBundle ") + language) << all << ' ' << lang;
    }
}

TEST(Surroundings, AnswersThatCannotBeWrittenEndTheBatchWithALine)
{
    // The pipe has no reader. The answers exceed a pipe's capacity, so the moment at which the reader ended does not
    // matter.
    for (const char *stream : {">/dev/full", ">&-", "| :"}) {
        BatchProcess home;
        QFile script(home.home() + "/script");
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(QByteArray("ticket\n").repeated(4000) + "setTicket {\"a\":1}\nscreenshot never.png\n");
        script.close();
        QProcess shell;
        shell.setWorkingDirectory(home.home());
        const QString command = QStringLiteral("{ \"$@\" --batch script; echo $? >status; } %1").arg(stream);
        shell.start("/bin/sh", QStringList{"-c", command, "sh", BV_BUILD_DIR "/bin/bvprint"} + kSmallPanel);
        ASSERT_TRUE(shell.waitForFinished());
        EXPECT_EQ(contents(home.home() + "/status"), "1\n") << stream;
        const QByteArray said = shell.readAllStandardError();
        EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
        EXPECT_TRUE(said.startsWith("bvprint: The answers cannot be written")) << said.toStdString();
    }
}

TEST(Surroundings, APictureThatCannotBeWrittenIsAnError)
{
    BatchProcess batch;
    batch.start(kSmallPanel);
    EXPECT_EQ(batch.result("panelView"), "paperView");
    EXPECT_NE(batch.error("screenshot /dev/full"), "");
}

TEST(Surroundings, AProgramOfThePaneGetsNoStreamNoDescriptorAndNoVariableOfOurs)
{
    // bvprint inherits a descriptor that this process left open. It must not pass it on.
    constexpr int kForgotten = 77;
    ASSERT_EQ(dup2(STDERR_FILENO, kForgotten), kForgotten);
    BatchProcess batch;
    const QString folder = batch.home() + "/system/Applications/Download Manager QL70/"
                                          "BREVANE Download Manager.app/Contents/MacOS";
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile program(folder + "/BREVANE Download Manager");
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n"
                  "echo noise; echo noise >&2\n"
                  "{ readlink /proc/$$/fd/0 /proc/$$/fd/77; cat; echo \"${QT_QPA_PLATFORM-unset}\"; } >\"$HOME/part\"\n"
                  "mv \"$HOME/part\" \"$HOME/report\"\n");
    program.setPermissions(program.permissions() | QFile::ExeOwner);
    program.close();
    batch.start(kOurPane);
    close(kForgotten);
    ASSERT_EQ(batch.result("panelView"), "pdeMainView");
    ASSERT_EQ(batch.error("press button_DownloadManager"), "");
    const QString report = batch.home() + "/report";
    for (int waited = 0; waited < 2000 && !QFile::exists(report); ++waited)
        QThread::msleep(10);
    EXPECT_EQ(contents(report), "/dev/null\nunset\n");
    EXPECT_EQ(batch.result("panelKind"), "vnd.brevane.pde.QL70.bvco") << "the command was eaten";
    EXPECT_EQ(batch.finish(), 0);
    EXPECT_EQ(batch.restOfOutput(), "");
    EXPECT_EQ(batch.standardError(), "");
}

} // namespace
