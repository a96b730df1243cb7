// The command line, the words of a batch line and the locale: what is read from outside before anything runs.
#include "host/BatchLine.h"
#include "host/CommandLine.h"
#include "host/Locale.h"

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
    EXPECT_EQ(line.queue, "Q");
    EXPECT_EQ(line.ppd, "x.ppd");
    EXPECT_EQ(line.deviceUri, "lpd://h/q");
    EXPECT_EQ(line.plugin, "-p.so");
    EXPECT_EQ(line.ticket, "t.json");
    EXPECT_TRUE(line.noPrinter);
    EXPECT_THAT(line.documents, ElementsAre("a.pdf", "--b.pdf"));
}

TEST(CommandLine, BatchReadsStandardInputForADashAndNamesTheQueueWithoutAServer)
{
    const auto parsed = parseCommandLine({"--batch", "-", "--ppd", "x.ppd"});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.value().mode, CommandLine::Mode::Batch);
    EXPECT_EQ(parsed.value().script, "-");
    EXPECT_EQ(parsed.value().queueWithoutServer(), "QL70");
}

TEST(CommandLine, HelpGoesBeforeAllElse)
{
    EXPECT_EQ(parseCommandLine({"--version", "--help", "--batch", "-", "x"}).value().mode, CommandLine::Mode::Help);
}

struct BadLine
{
    QStringList arguments;
    const char *named; // what the sentence names
};

void PrintTo(const BadLine &row, std::ostream *out)
{
    *out << row.arguments.join(' ').toStdString();
}

class BadCommandLine : public ::testing::TestWithParam<BadLine>
{};

TEST_P(BadCommandLine, IsRefusedInASentenceThatNamesTheArgument)
{
    const auto parsed = parseCommandLine(GetParam().arguments);
    ASSERT_FALSE(parsed);
    EXPECT_THAT(parsed.error().toStdString(), HasSubstr(GetParam().named));
}

INSTANTIATE_TEST_SUITE_P(Lines, BadCommandLine,
                         ::testing::Values(BadLine{{"--colour"}, "--colour"}, BadLine{{"-x"}, "-x"},
                                           BadLine{{"a", "--queue"}, "--queue NAME"}, BadLine{{"--ppd="}, "--ppd"},
                                           BadLine{{"--help=1"}, "--help"}, BadLine{{"--no-printer"}, "--ppd"},
                                           BadLine{{"--batch", "-", "a.pdf"}, "documents"},
                                           BadLine{{"--batch", "-", "--screenshot", "x"}, "--screenshot"}));

struct Words
{
    const char *line;
    QString command;
    QStringList words;
};

void PrintTo(const Words &row, std::ostream *out)
{
    *out << row.line;
}

class BatchWords : public ::testing::TestWithParam<Words>
{};

TEST_P(BatchWords, AreCutAtBlanksOutsideQuotes)
{
    const bv::BatchLine line = bv::splitBatchLine(QString::fromUtf8(GetParam().line));
    EXPECT_EQ(line.command, GetParam().command);
    const auto words = bv::batchWords(line.rest);
    ASSERT_TRUE(words);
    EXPECT_EQ(words.value(), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(Lines, BatchWords,
                         ::testing::Values(Words{"", "", {}}, Words{"  # set a 1", "", {}},
                                           Words{" willShow\r", "willShow", {}},
                                           Words{"set\ta   1 ", "set", {"a", "1"}},
                                           Words{R"(type f "a \"b\" c\\d \n")", "type", {"f", R"(a "b" c\d \n)"}},
                                           Words{R"(set f "")", "set", {"f", ""}},
                                           Words{R"(set a" "b\c)", "set", {"a b\\c"}},
                                           Words{R"("print" x)", "print", {"x"}}));

TEST(BatchWords, AnOpenQuoteIsAnErrorAndTheRestOfALineStaysAsItStands)
{
    EXPECT_FALSE(bv::batchWords("a \"b"));
    EXPECT_FALSE(bv::batchWords("\"a\\\""));
    EXPECT_EQ(bv::splitBatchLine(" setTicket  {\"a\": \"b  \\\" c\"} ").rest, "{\"a\": \"b  \\\" c\"}");
}

struct LocaleRow
{
    const char *all;
    const char *messages;
    const char *lang;
    const char *locale;
};

void PrintTo(const LocaleRow &row, std::ostream *out)
{
    *out << row.all << ' ' << row.messages << ' ' << row.lang;
}

class MessageLocale : public ::testing::TestWithParam<LocaleRow>
{
protected:
    // Each test is a process of its own, so the variables need no putting back.
    void SetUp() override
    {
        qputenv("LC_ALL", GetParam().all);
        qputenv("LC_MESSAGES", GetParam().messages);
        qputenv("LANG", GetParam().lang);
    }
};

TEST_P(MessageLocale, IsTheFirstOfTheThreeThatIsSet)
{
    EXPECT_EQ(bv::messageLocale(), GetParam().locale);
}

INSTANTIATE_TEST_SUITE_P(Rows, MessageLocale,
                         ::testing::Values(LocaleRow{"", "", "", ""}, LocaleRow{"C", "de_DE", "de_DE", ""},
                                           LocaleRow{"", "POSIX", "fr_FR", ""}, LocaleRow{"", "", "C.UTF-8", ""},
                                           LocaleRow{"", "de_AT.UTF-8", "C", "de_AT"},
                                           LocaleRow{"ca_ES.UTF-8@valencia", "C", "C", "ca_ES"}));

} // namespace
