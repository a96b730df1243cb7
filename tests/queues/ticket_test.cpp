// The ticket: JSON in and out, changes in place, and the options of a job that come of it.
#include "jobs/FolderSink.h"
#include "jobs/PrintJob.h"
#include "jobs/StandardAttributes.h"
#include "queues/PpdFile.h"
#include "queues/QueueSession.h"
#include "queues/Ticket.h"
#include "queues/TicketJson.h"

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

TEST(TicketJson, IsRefusedInASentence)
{
    const std::pair<const char *, const char *> rows[] = {
        {"", "no JSON"},  {"{\"a\":1", "no JSON"}, {"[1]", "object"},
        {"null", "JSON"}, {"{\"a\":null}", "/a"},  {"{\"a\":{\"b\":[0,{\"c\":null}]}}", "/a/b/1/c"}};
    for (const auto &[json, named] : rows) {
        const auto ticket = ticketFromJson(json);
        ASSERT_FALSE(ticket) << json;
        EXPECT_THAT(ticket.error().toStdString(), HasSubstr(named));
    }
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

TEST(JobOptions, SayTheColorModeThatTheChoiceMeans)
{
    const std::pair<JobOptions, QString> rows[] = {
        {{}, ""},
        {{{"BVColorAsGray", "True"}}, "monochrome"},
        {{{"BVColorAsGray", "false"}}, "color"},
        {{{"BVColorAsGray", "Perhaps"}}, ""},
        {{{"BVColorAsGray", "True"}, {"print-color-mode", "color"}}, "color"}};
    for (auto [options, mode] : rows) {
        bv::addStandardAttributes(options, nullptr);
        const auto found = options.find("print-color-mode");
        EXPECT_EQ(found == options.end() ? QString() : found->second, mode);
    }
}

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
    const QDir job(folder.filePath("jobs/job-1"));
    QFile options(job.filePath("options.json"));
    QFile copy(job.filePath("2-a.txt"));
    ASSERT_TRUE(options.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(QJsonDocument::fromJson(options.readAll()).object(), (QJsonObject{{"k", "a b"}}));
    EXPECT_EQ(copy.readAll(), "x/a.txt");
}

} // namespace
