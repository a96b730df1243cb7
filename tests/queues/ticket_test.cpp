// SPDX-License-Identifier: GPL-2.0-or-later
// The ticket: JSON in and out, and changes in place.
#include "queues/Ticket.h"
#include "queues/TicketJson.h"

#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::PrintDictionary;
using bv::PrintValue;
using bv::ticketFromJson;
using ::testing::HasSubstr;

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

TEST(Ticket, StoringNoValueRemovesTheKey)
{
    bv::Ticket ticket;
    ticket.setValue("a", "1");
    ticket.setValue("a", PrintValue());
    EXPECT_EQ(written(ticket.entries()), "{}");
}

} // namespace
