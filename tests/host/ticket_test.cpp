// The ticket: JSON in and out, changes in place, and the options of a job that come of it.
#include "host/PpdFile.h"
#include "host/PrintJob.h"
#include "host/StandardAttributes.h"
#include "host/Ticket.h"
#include "host/TicketJson.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::JobOptions;
using bv::PrintDictionary;
using bv::PrintValue;
using bv::ticketFromJson;
using ::testing::HasSubstr;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

QByteArray written(const PrintDictionary &ticket)
{
    return QJsonDocument(bv::toJson(ticket)).toJson(QJsonDocument::Compact);
}

TEST(TicketJson, ReadAndWrittenAgainIsTheSame)
{
    const QByteArray json = R"({"":"no name","QL70":{"Office":{"BVQuickColor":"Photo","n":3}},"a":[1,"2",[],{}],)"
                            R"("big":9007199254740993,"deep":{"x":{"y":[{"z":false}]}},"least":-9223372036854775808,)"
                            R"("real":1.5,"text":":;<=>? \"\\ ü€\u0001","yes":true})";
    const auto ticket = ticketFromJson(json);
    ASSERT_TRUE(ticket) << ticket.error().toStdString();
    EXPECT_EQ(QString::fromUtf8(written(ticket.value())), QString::fromUtf8(json));
    EXPECT_EQ(*ticket.value().value("big").integer(), 9007199254740993);
    EXPECT_TRUE(ticket.value().value("real").real());
}

struct BadJson
{
    const char *json;
    const char *named;
};

void PrintTo(const BadJson &row, std::ostream *out)
{
    *out << row.json;
}

class BadTicket : public ::testing::TestWithParam<BadJson>
{};

TEST_P(BadTicket, IsRefusedInASentence)
{
    const auto ticket = ticketFromJson(GetParam().json);
    ASSERT_FALSE(ticket);
    EXPECT_THAT(ticket.error().toStdString(), HasSubstr(GetParam().named));
}

INSTANTIATE_TEST_SUITE_P(Texts, BadTicket,
                         ::testing::Values(BadJson{"", "no JSON"}, BadJson{"{\"a\":1", "no JSON"},
                                           BadJson{"[1]", "object"}, BadJson{"null", "JSON"},
                                           BadJson{"{\"a\":null}", "/a"},
                                           BadJson{"{\"a\":{\"b\":[0,{\"c\":null}]}}", "/a/b/1/c"}));

TEST(Ticket, IsEmptiedAndFilledInPlaceAndStoresNoNone)
{
    bv::Ticket ticket;
    const bv::PrintSettings &seenByPanel = ticket;
    ticket.setValue("a", "1");
    ticket.clear();
    EXPECT_TRUE(seenByPanel.value("a").isNone());
    PrintDictionary other;
    other.setValue("b", PrintValue::integer(2));
    ticket.replace(other);
    EXPECT_EQ(*seenByPanel.value("b").integer(), 2);
    ticket.setValue("b", PrintValue());
    EXPECT_FALSE(ticket.entries().contains("b"));
}

TEST(Ticket, ADeepCopySharesNothingWithTheTicket)
{
    bv::Ticket ticket;
    ticket.replace(ticketFromJson(R"({"a":{"b":"1"},"c":[{"d":"1"}]})").value());
    const PrintDictionary copy = bv::Ticket::deepCopy(ticket.entries());
    ticket.value("a").dictionary()->setValue("b", "2");
    ticket.value("c").array()->front().dictionary()->setValue("d", "2");
    EXPECT_EQ(written(copy), R"({"a":{"b":"1"},"c":[{"d":"1"}]})");
}

TEST(JobOptions, AreTheTopLevelStringsAndIntegersAndNothingElse)
{
    const auto ticket = ticketFromJson(R"({"a":":;<=>?","b":"","n":-42,"r":1.5,"t":true,"l":["x"],"d":{"x":"y"}})");
    EXPECT_THAT(bv::ticketOptions(ticket.value()),
                UnorderedElementsAre(Pair("a", ":;<=>?"), Pair("b", ""), Pair("n", "-42")));
}

struct ColorRow
{
    JobOptions options;
    const char *mode; // null: none is added
};

void PrintTo(const ColorRow &row, std::ostream *out)
{
    for (const auto &[keyword, value] : row.options)
        *out << keyword.toStdString() << '=' << value.toStdString() << ' ';
}

class ColorMode : public ::testing::TestWithParam<ColorRow>
{};

TEST_P(ColorMode, SaysWhatTheOptionSays)
{
    JobOptions options = GetParam().options;
    bv::addStandardAttributes(options, nullptr);
    const auto mode = options.find("print-color-mode");
    ASSERT_EQ(mode != options.end(), GetParam().mode != nullptr);
    if (GetParam().mode) {
        EXPECT_EQ(mode->second, GetParam().mode);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, ColorMode,
                         ::testing::Values(ColorRow{{}, nullptr}, ColorRow{{{"BVColorAsGray", "True"}}, "monochrome"},
                                           ColorRow{{{"BVColorAsGray", "false"}}, "color"},
                                           ColorRow{{{"BVColorAsGray", "Perhaps"}}, nullptr},
                                           ColorRow{{{"BVColorAsGray", "True"}, {"print-color-mode", "color"}},
                                                    "color"}));

TEST(ColorModeOfAPpd, IsThatOfADefaultWhichTheOptionHas)
{
    const QTemporaryDir folder;
    for (const char *choices : {"", "*BVColorAsGray True: \"\"\n"}) {
        QFile file(folder.filePath("gray.ppd"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("*PPD-Adobe: \"4.3\"\n*OpenUI *BVColorAsGray: Boolean\n*DefaultBVColorAsGray: True\n");
        file.write(choices);
        file.write("*CloseUI: *BVColorAsGray\n");
        file.close();
        const auto ppd = bv::PpdFile::open(file.fileName());
        ASSERT_TRUE(ppd) << ppd.error().toStdString();
        JobOptions options;
        bv::addStandardAttributes(options, ppd.value().handle());
        EXPECT_EQ(options.count("print-color-mode"), *choices ? 1U : 0U);
    }
}

TEST(JobOptions, ExtraOnesWinOverTheTicket)
{
    PrintDictionary ticket;
    ticket.setValue("copies", PrintValue::integer(9));
    EXPECT_THAT(bv::jobOptions(ticket, nullptr, {{"copies", "2"}}), UnorderedElementsAre(Pair("copies", "2")));
}

TEST(Documents, AMissingOneAFolderAndNoneAtAllAreNamed)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(bv::checkDocuments({file.fileName()}), QString());
    EXPECT_FALSE(bv::checkDocuments({}).isEmpty());
    EXPECT_THAT(bv::checkDocuments({file.fileName(), folder.path()}).toStdString(), HasSubstr("folder"));
    EXPECT_THAT(bv::checkDocuments({folder.filePath("b.txt")}).toStdString(), HasSubstr("b.txt"));
}

TEST(FolderSink, KeepsTheOptionsAndTheDocumentsOfOneNameApart)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath("x");
    for (const char *name : {"a.txt", "x/a.txt"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(name);
    }
    bv::FolderSink sink(folder.filePath("jobs"));
    const bv::JobRequest request{"Q", "t", {folder.filePath("a.txt"), folder.filePath("x/a.txt")}, {{"k", "a b"}}};
    ASSERT_TRUE(sink.submit(request));
    const auto second = sink.submit(request);
    ASSERT_TRUE(second);
    EXPECT_EQ(second.value(), 2);
    const QDir job(sink.lastJobFolder());
    QFile options(job.filePath("options.json"));
    QFile copy(job.filePath("2-a.txt"));
    ASSERT_TRUE(options.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(QJsonDocument::fromJson(options.readAll()).object(), (QJsonObject{{"k", "a b"}}));
    EXPECT_EQ(copy.readAll(), "x/a.txt");
}

} // namespace
