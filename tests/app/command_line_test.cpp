// SPDX-License-Identifier: GPL-2.0-or-later
// Input read before anything runs: command line, batch lines, display and locale. Also checks the page that documents
// the batch commands.
#include "app/CommandLine.h"
#include "app/WindowSystem.h"
#include "batch/BatchCommands.h"
#include "batch/BatchLine.h"
#include "queues/Locale.h"

#include <QFile>
#include <QRegularExpression>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::CommandLine;
using bv::parseCommandLine;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(CommandLine, KeepsEveryOptionAndTheDocumentsInTheirOrder)
{
    const auto parsed = parseCommandLine({"--queue", "Q", "a.pdf", "--ppd=x.ppd", "--device-uri", "lpd://h/q",
                                          "--no-printer", "--plugin", "-p.so", "--ticket", "t.json", "--", "--b.pdf"});
    ASSERT_TRUE(parsed);
    const CommandLine &line = parsed.value();
    EXPECT_EQ(line.mode, CommandLine::Mode::Dialog);
    EXPECT_EQ(line.session.queue, "Q");
    EXPECT_EQ(line.session.ppd, "x.ppd");
    EXPECT_EQ(line.session.deviceUri, "lpd://h/q");
    EXPECT_EQ(line.plugin, "-p.so");
    EXPECT_EQ(line.session.ticket, "t.json");
    EXPECT_TRUE(line.session.noPrinter);
    EXPECT_THAT(line.documents, ElementsAre("a.pdf", "--b.pdf"));
}

TEST(CommandLine, IsRefusedInASentenceThatNamesTheArgument)
{
    // clang-format off
    const std::pair<QStringList, const char *> rows[] = {
        {{"--colour"}, "'colour'"}, {{"-x"}, "'x'"}, {{"a", "--queue"}, "--queue"}, {{"--ppd="}, "--ppd"},
        {{"--help=1"}, "--help"}, {{"--no-printer"}, "--ppd"}, {{"--batch", "-", "a.pdf"}, "documents"},
        {{"--batch", "-", "--screenshot", "x"}, "--screenshot"}, {{"--job", "1", "a.pdf"}, "--job"},
        {{"--job", "1", "--ppd", "x"}, "--job"}, {{"--agent", "maybe"}, "--agent"}, {{"--agent", "on", "a.pdf"}, "--agent"},
        {{"--batch", "-", "--preset", "x"}, "--preset"}, {{"--ticket", "t.json", "--preset", "x"}, "--ticket"},
    };
    // clang-format on
    for (const auto &[arguments, named] : rows) {
        const auto parsed = parseCommandLine(arguments);
        ASSERT_FALSE(parsed) << named;
        EXPECT_THAT(parsed.error().toStdString(), HasSubstr(named));
    }
}

TEST(WindowSystem, IsOffscreenOnlyWithoutADisplayAndWithoutAUserAtTheWindow)
{
    struct Row
    {
        std::array<const char *, 3> variables; // QT_QPA_PLATFORM, WAYLAND_DISPLAY, DISPLAY
        QStringList arguments;
        std::optional<QByteArray> platform; // none: refused
    };
    const QStringList window = {"a.pdf"};
    const QStringList picture = {"--screenshot", "x.png"};
    const QStringList batch = {"--batch", "-"};
    const Row rows[] = {
        {{"", "", ""}, window, std::nullopt}, {{"", "", ""}, picture, "offscreen"},
        {{"", "", ""}, batch, "offscreen"},   {{"", "", ":0"}, window, ""},
        {{"", "", ":0"}, picture, ""},        {{"", "wayland-0", ":0"}, batch, "wayland;xcb;offscreen"},
        {{"offscreen", "", ""}, window, ""},  {{"vnc", "", ":0"}, batch, ""},
    };
    for (const Row &row : rows) {
        qputenv("QT_QPA_PLATFORM", row.variables[0]);
        qputenv("WAYLAND_DISPLAY", row.variables[1]);
        qputenv("DISPLAY", row.variables[2]);
        const auto chosen = bv::windowSystem(parseCommandLine(row.arguments).value());
        const std::optional<QByteArray> platform = chosen ? std::optional(chosen.value()) : std::nullopt;
        EXPECT_EQ(platform, row.platform) << row.arguments[0].toStdString() << ' ' << row.variables[2];
    }
}

// Compares the first cell of each row in the page's tables of commands.
TEST(BatchPage, ShowsEveryCommandAsTheProgramTakesIt)
{
    QFile page(BV_SOURCE_DIR "/docs/batch.md");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    const QString commands = text.section("## Commands", 1).section("\n## ", 0, 0);
    QStringList shown;
    static const QRegularExpression firstCell("^\\| `([^`]+)` \\|", QRegularExpression::MultilineOption);
    for (auto cells = firstCell.globalMatch(commands); cells.hasNext();)
        shown.append(cells.next().captured(1));
    EXPECT_EQ(shown, bv::BatchCommands::usages());
}

TEST(BatchWords, AreCutAtBlanksOutsideQuotes)
{
    // clang-format off
    const std::tuple<const char *, QString, QStringList> rows[] = {
        {"", "", {}}, {"  # set a 1", "", {}}, {" willShow\r", "willShow", {}}, {"set\ta   1 ", "set", {"a", "1"}},
        {R"(type f "a \"b\" c\\d \n")", "type", {"f", R"(a "b" c\d \n)"}}, {R"(set f "")", "set", {"f", ""}},
        {R"(set a" "b\c)", "set", {"a b\\c"}}, {R"("print" x)", "print", {"x"}},
    };
    // clang-format on
    for (const auto &[text, command, expected] : rows) {
        const bv::BatchLine line = bv::splitBatchLine(QString::fromUtf8(text));
        EXPECT_EQ(line.command, command);
        const auto words = bv::batchWords(line.rest);
        ASSERT_TRUE(words) << text;
        EXPECT_EQ(words.value(), expected) << text;
    }
}

TEST(BatchWords, AnOpenQuoteIsAnErrorAndTheRestOfALineStaysAsItStands)
{
    EXPECT_FALSE(bv::batchWords("a \"b"));
    EXPECT_FALSE(bv::batchWords("\"a\\\""));
    EXPECT_FALSE(bv::batchWords(R"(a\"b)")) << "outside quotes a backslash is a character like any other";
    EXPECT_EQ(bv::splitBatchLine(" setTicket  {\"a\": \"b  \\\" c\"} ").rest, "{\"a\": \"b  \\\" c\"}");
}

// Each test runs in a separate process, so the variables are not restored.
TEST(MessageLocale, IsTheFirstVariableSetAndEnglishWithoutOne)
{
    struct Row
    {
        std::array<const char *, 3> variables;
        bool isC;
        const char *locale;
    };
    const Row rows[] = {{{"", "", ""}, false, "en"},
                        {{"C", "de_DE", "de_DE"}, true, "en"},
                        {{"", "POSIX", "fr_FR"}, true, "en"},
                        {{"", "", "C.UTF-8"}, true, "en"},
                        {{"", "de_AT.UTF-8", "C"}, false, "de_AT"},
                        {{"ca_ES.UTF-8@valencia", "C", "C"}, false, "ca_ES"}};
    for (const auto &[variables, isC, locale] : rows) {
        qputenv("LC_ALL", variables[0]);
        qputenv("LC_MESSAGES", variables[1]);
        qputenv("LANG", variables[2]);
        const std::string row = std::string(variables[0]) + ' ' + variables[1] + ' ' + variables[2];
        EXPECT_EQ(bv::isLocaleC(), isC) << row;
        EXPECT_EQ(bv::messageLocale(), locale) << row;
    }
}

} // namespace
