// SPDX-License-Identifier: GPL-2.0-or-later
// bvprint --print with a private print server and a backend that records what it gets.
#include "presets/PresetStore.h"
#include "queues/RememberedTickets.h"
#include "support/BatchProcess.h"
#include "support/PrivateCupsd.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::asCarried;
using bvtest::BatchProcess;
using bvtest::PrivateCupsd;
using bvtest::RecordedJob;
using ::testing::HasSubstr;

class DirectPrinting : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.copyingPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        m_program.setVariable("CUPS_SERVER", m_server.address());
    }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_program.home() + '/' + name;
        QDir().mkpath(path.section('/', 0, -2));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    // What --print --json answers.
    QJsonObject print(const QStringList &arguments)
    {
        m_program.runToEnd(QStringList{"--print", "--json"} + arguments);
        EXPECT_EQ(m_program.finish(), 0) << m_program.standardError().toStdString();
        return QJsonDocument::fromJson(m_program.restOfOutput()).object();
    }

    PrivateCupsd m_server;
    BatchProcess m_program;
};

TEST_F(DirectPrinting, SendsWhatABatchAndTheWindowSendAndTheBackendGetsIt)
{
    const QString document = write("a b.txt", "text\n");
    const QJsonObject sent = print({"-d", "QL70", "-o", "BVQuickColor=Photo", "-o", "BVEconoMode=True", "-n", "2", "-t",
                                    "My title", "-o", "number-up=2", document});
    const QJsonObject options = sent["options"].toObject();
    const RecordedJob got = m_server.recorded(sent["job"].toInt());
    EXPECT_EQ(got.data, "text\n");
    EXPECT_EQ(got.arguments[2], "My title");
    EXPECT_EQ(got.arguments[3], "2");
    for (auto option = options.begin(); option != options.end(); ++option) {
        if (option.key() == "copies") // an argument of its own
            continue;
        EXPECT_EQ(asCarried(got.options.at(option.key())).toStdString(),
                  asCarried(option.value().toString()).toStdString())
            << option.key().toStdString();
    }

    BatchProcess batch;
    batch.setVariable("CUPS_SERVER", m_server.address());
    batch.start({"--queue", "QL70"});
    for (const char *command :
         {"panelView", "willShow", "restoreValues", "set menu_QuickColor 1", "set check_EconomyPrint 1"})
        EXPECT_EQ(batch.error(command), "") << command;
    const QJsonObject same = batch.result("print \"" + document + '"')["options"].toObject();
    EXPECT_GT(same.size(), 25);
    for (auto option = same.begin(); option != same.end(); ++option)
        EXPECT_EQ(options[option.key()], option.value()) << option.key().toStdString();
    EXPECT_EQ(batch.finish(), 0);
}

TEST_F(DirectPrinting, StartsFromTheUsersDefaultsOrAPresetAndNeverFromTheLastJob)
{
    const QString document = write("a.txt", "text\n");
    write(".cups/lpoptions", "Dest QL70 BVEdgeType=High sides=two-sided-long-edge\nDest QL70/Draft BVEconoMode=True\n");
    bv::PrintDictionary last;
    last.setValue("BVBrightness", bv::PrintValue("Darker"));
    last.setValue("Resolution", bv::PrintValue("1200dpi"));
    ASSERT_TRUE(bv::RememberedTickets(m_program.home() + "/.local/state/bvprint/tickets").store("QL70", last));
    bv::Preset preset{"Photos", "QL70", {}};
    preset.options.setValue("BVQuickColor", bv::PrintValue("Photo"));
    preset.options.setValue("BVNoSuch", bv::PrintValue("1"));
    ASSERT_EQ(bv::PresetStore(m_program.home() + "/.config/bvprint/presets").store("QL70", preset), "");

    struct Row
    {
        QStringList arguments;
        std::map<QString, const char *> options;
    };
    const Row rows[] = {
        {{}, {{"BVEdgeType", "High"}, {"Duplex", "DuplexNoTumble"}, {"BVEconoMode", "False"}}},
        {{"-d", "QL70/Draft"}, {{"BVEdgeType", "Medium"}, {"Duplex", "None"}, {"BVEconoMode", "True"}}},
        {{"--preset", "photos"}, {{"BVEdgeType", "Medium"}, {"BVQuickColor", "Photo"}, {"Duplex", "None"}}},
        {{"-o", "sides=one-sided", "-o", "BVEdgeType=Low"}, {{"BVEdgeType", "Low"}, {"Duplex", "None"}}},
    };
    ASSERT_TRUE(m_server.administer("lpadmin", {"-d", "QL70"}));
    for (const Row &row : rows) {
        const QJsonObject options = print(row.arguments + QStringList{document})["options"].toObject();
        EXPECT_EQ(options["BVBrightness"], "Normal");
        EXPECT_EQ(options["Resolution"], "600dpi");
        for (const auto &[keyword, choice] : row.options)
            EXPECT_EQ(options[keyword], choice) << row.arguments.join(u' ').toStdString() << keyword.toStdString();
    }
    for (const QStringList &wrong :
         {QStringList{"-d", "Nowhere"}, QStringList{"-d", "QL70/Nothing"}, QStringList{"--preset", "Nothing"}}) {
        m_program.runToEnd(wrong + QStringList{"--print", document});
        EXPECT_EQ(m_program.finish(), 2);
        EXPECT_THAT(m_program.standardError().toStdString(), HasSubstr("No"));
    }
    EXPECT_EQ(m_server.recordedCount(), 4);
}

TEST_F(DirectPrinting, TakesSeveralFilesAndStandardInputAsOneJobAndSaysItsNumber)
{
    const QString first = write("first file.txt", "first\n");
    m_program.runToEnd({"--print", "-d", "QL70", first, write("empty", "")});
    EXPECT_EQ(m_program.finish(), 2);
    EXPECT_THAT(m_program.standardError().toStdString(), HasSubstr("is empty"));
    m_program.runToEnd({"--print", "-d", "QL70", QUrl::fromLocalFile(first).toString(QUrl::FullyEncoded), "-"});
    m_program.input("from input\n");
    EXPECT_EQ(m_program.finish(), 0) << m_program.standardError().toStdString();
    const QString said = QString::fromUtf8(m_program.restOfOutput());
    static const QRegularExpression kSaid("^request id is QL70-(\\d+) \\(2 file\\(s\\)\\)\n$");
    ASSERT_TRUE(kSaid.match(said).hasMatch()) << said.toStdString();
    EXPECT_EQ(kSaid.match(said).captured(1), "1"); // an empty document leaves no job behind
    EXPECT_EQ(m_server.recorded(1).data, "first\nfrom input\n");

    // A queue that takes no jobs is the print server's refusal.
    ASSERT_TRUE(m_server.administer("cupsreject", {"QL70"}));
    m_program.runToEnd({"--print", "-d", "QL70", first});
    EXPECT_EQ(m_program.finish(), 1);
    EXPECT_EQ(m_program.restOfOutput(), "");
    EXPECT_EQ(m_server.recordedCount(), 1);
}

} // namespace
