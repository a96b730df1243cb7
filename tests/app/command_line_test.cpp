// The command line, the words of a batch line and the locale: what is read from outside before anything runs.
#include "app/CommandLine.h"
#include "batch/BatchLine.h"
#include "queues/Locale.h"

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
        {{"--batch", "-", "--screenshot", "x"}, "--screenshot"},
    };
    // clang-format on
    for (const auto &[arguments, named] : rows) {
        const auto parsed = parseCommandLine(arguments);
        ASSERT_FALSE(parsed) << named;
        EXPECT_THAT(parsed.error().toStdString(), HasSubstr(named));
    }
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

// Each test is a process of its own, so the variables need no putting back.
TEST(MessageLocale, IsTheFirstOfTheThreeThatIsSet)
{
    const std::array<const char *, 4> rows[] = {
        {"", "", "", ""},        {"C", "de_DE", "de_DE", ""},       {"", "POSIX", "fr_FR", ""},
        {"", "", "C.UTF-8", ""}, {"", "de_AT.UTF-8", "C", "de_AT"}, {"ca_ES.UTF-8@valencia", "C", "C", "ca_ES"}};
    for (const auto &[all, messages, lang, locale] : rows) {
        qputenv("LC_ALL", all);
        qputenv("LC_MESSAGES", messages);
        qputenv("LANG", lang);
        EXPECT_EQ(bv::messageLocale(), locale) << all << ' ' << messages << ' ' << lang;
    }
}

} // namespace
