// SPDX-License-Identifier: GPL-2.0-or-later
// Real printing: bvprint and its sink with a private print server, our plug-in, our PPD, and a backend that records
// what it gets.
#include "support/BatchProcess.h"
#include "support/PrivateCupsd.h"

#include "jobs/PrintServerSink.h"
#include "queues/PrintServer.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::asCarried;
using bvtest::BatchProcess;
using bvtest::PrivateCupsd;
using bvtest::RecordedJob;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

// A document of unknown format that holds every byte value and is longer than any buffer.
QByteArray everyByte()
{
    QByteArray bytes = "\x01\x02 not a document of any kind\n";
    for (int i = 0; i < 200000; ++i)
        bytes.append(static_cast<char>(i * 7 + i / 256));
    return bytes;
}

class Printing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.directPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        m_batch.setVariable("CUPS_SERVER", m_server.address());
    }

    void start(const QStringList &more = {"--queue", "QL70"}) { m_batch.start(more); }
    QJsonObject print(const QString &path) { return m_batch.send("print \"" + path + '"'); }
    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    void useServerHere() { m_server.useHere(m_folder.path()); }

    PrivateCupsd m_server;
    BatchProcess m_batch;
    QTemporaryDir m_folder;
};

TEST_F(Printing, OptionsAndDocumentReachTheBackendUnchanged)
{
    const QByteArray bytes = everyByte();
    const QString document = write("every byte", bytes);
    start();
    ASSERT_EQ(m_batch.result("panelView"), "pdeMainView");
    EXPECT_TRUE(
        m_batch
            .result(R"(setTicket {"colons":":;<=>?","words":"two  words \"quoted\" 'so' \\ back","comma":"a,b",)"
                    R"("empty":"","umlaut":"Grün €","copies":2,"number":-7})")
            .isNull());
    EXPECT_EQ(m_batch.result("restoreValues"), true);
    EXPECT_TRUE(m_batch.result("set menu_QuickColor 1").isNull());
    EXPECT_TRUE(m_batch.result("set check_EconomyPrint 1").isNull());
    const QJsonObject sent = print(document)["result"].toObject();
    ASSERT_GT(sent["job"].toInt(), 0);
    const QJsonObject options = sent["options"].toObject();
    EXPECT_EQ(options["colons"], ":;<=>?");
    EXPECT_EQ(options["BVEconoMode"], "True");
    EXPECT_GT(options.size(), 29);

    const RecordedJob got = m_server.recorded(sent["job"].toInt());
    EXPECT_TRUE(got.data == bytes);
    for (auto option = options.begin(); option != options.end(); ++option) {
        const auto found = got.options.find(option.key());
        // The number of copies has an argument of its own.
        if (option.key() == "copies") {
            EXPECT_EQ(got.arguments[3], "2");
        } else if (found == got.options.end()) {
            ADD_FAILURE() << option.key().toStdString() << " is missing";
        } else {
            EXPECT_EQ(asCarried(found->second).toStdString(), asCarried(option.value().toString()).toStdString())
                << option.key().toStdString();
        }
    }
    EXPECT_EQ(m_batch.finish(), 0);
    EXPECT_EQ(m_batch.standardError(), "");
    EXPECT_EQ(m_server.recordedCount(), 1);
}

TEST_F(Printing, TheDefaultQueueIsUsedAndLeavesNoPpdFileBehind)
{
    ASSERT_TRUE(m_server.addQueue("Hall", m_server.directPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
    ASSERT_TRUE(m_server.administer("lpadmin", {"-d", "QL70"}));
    QDir(m_folder.path()).mkdir("tmp");
    // The user's own default has priority. Here it is an instance: a queue with a set of options.
    for (const char *queue : {"QL70", "Hall"}) {
        BatchProcess batch;
        batch.setVariable("CUPS_SERVER", m_server.address());
        batch.setVariable("TMPDIR", m_folder.filePath("tmp"));
        if (queue == QLatin1String("Hall")) {
            QDir(batch.home()).mkdir(".cups");
            QFile options(batch.home() + "/.cups/lpoptions");
            ASSERT_TRUE(options.open(QIODevice::WriteOnly));
            options.write("Default Hall/draft sides=one-sided\n");
        }
        batch.start({});
        EXPECT_EQ(batch.result("panelView"), "pdeMainView");
        EXPECT_EQ(batch.result("restoreValues"), true);
        // The pane stores its values under the queue's name.
        EXPECT_EQ(batch.result("saveValues"), true);
        EXPECT_EQ(batch.result("ticket").toObject()["QL70"].toObject().keys(), QStringList{queue});
    }
    EXPECT_EQ(QDir(m_folder.filePath("tmp")).entryList(QDir::Files), QStringList());
}

TEST_F(Printing, SeveralDocumentsAreOneJobAndOneRefusalCancelsIt)
{
    useServerHere();
    ASSERT_TRUE(m_server.addQueue("QL70", m_server.copyingPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
    const QString first = write("1.txt", "first\n");
    const QString second = write("2.txt", "second\n");
    const QString picture = write("3.png", QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200000001"));
    bv::PrintServerSink sink;
    bv::CallControl control;
    const auto refused = sink.submit({"QL70", "title", {first, picture, second}, {}}, control);
    ASSERT_FALSE(refused);
    EXPECT_THAT(refused.error().toStdString(), HasSubstr("3.png"));
    const auto job = sink.submit({"QL70", "title", {first, second}, {{"k", "v"}}}, control);
    ASSERT_TRUE(job) << job.error().toStdString();
    const RecordedJob got = m_server.recorded(job.value().id.value_or(0));
    EXPECT_EQ(got.data, "first\nsecond\n");
    EXPECT_EQ(got.arguments[2], "title");
    EXPECT_EQ(got.options.at("k"), "v");
    EXPECT_EQ(m_server.recordedCount(), 1);
    const auto states = PrivateCupsd::jobStates("QL70");
    EXPECT_EQ(states.size(), 2U);
    EXPECT_EQ(states.begin()->second, IPP_JSTATE_CANCELED);
}

TEST_F(Printing, ASignalThatEndsTheProgramCancelsTheJobThatIsBeingSent)
{
    useServerHere();
    // Long enough to be on its way when the signal comes.
    QFile document(write("long.ps", "%!PS\n"));
    ASSERT_TRUE(document.resize(qint64{8} * 1024 * 1024 * 1024));
    const QString script = write("script", "print \"" + document.fileName().toUtf8() + "\"\n");
    size_t jobs = 0;
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess program;
        program.setChildProcessModifier([number] { std::signal(number, SIG_DFL); });
        program.start(BV_BUILD_DIR "/bin/bvprint", {"--queue", "QL70", "--batch", script});
        ++jobs;
        ASSERT_TRUE(QTest::qWaitFor([&] { return PrivateCupsd::jobStates("QL70").size() == jobs; }, 30000));
        kill(pid_t(program.processId()), number);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit); // ended by the signal
        EXPECT_EQ(program.exitCode(), number);
        EXPECT_EQ(PrivateCupsd::jobStates("QL70").rbegin()->second, IPP_JSTATE_CANCELED);
    }
    EXPECT_EQ(m_server.recordedCount(), 0);
}

TEST_F(Printing, AnOptionThatWouldBeParsedAsSeveralIsRefused)
{
    const QString text = write("a.txt", "text\n");
    start();
    for (const char *value : {"{x", "{a}b", "{{a}"}) {
        EXPECT_TRUE(m_batch.result(QString("setTicket {\"brace\":\"%1\",\"next\":\"n\"}").arg(value)).isNull());
        EXPECT_THAT(print(text)["error"].toString().toStdString(), HasSubstr("brace")) << value;
    }
    for (const char *keyword : {"two words", "a=b"}) {
        EXPECT_TRUE(m_batch.result(QString("setTicket {\"%1\":\"v\",\"next\":\"n\"}").arg(keyword)).isNull());
        EXPECT_THAT(print(text)["error"].toString().toStdString(), HasSubstr(keyword));
    }
    for (const char *value : {"x{", "{x}", "{a b {c}}", "}"}) {
        // An option without a name is left out.
        EXPECT_TRUE(m_batch.result(QString(R"(setTicket {"":"x","brace":"%1","next":"n"})").arg(value)).isNull());
        RecordedJob got = m_server.recorded(print(text)["result"].toObject()["job"].toInt());
        EXPECT_EQ(got.options["brace"].toStdString(), value);
        EXPECT_EQ(got.options["next"], "n");
        EXPECT_EQ(got.options.count(""), 0U);
    }
}

TEST_F(Printing, ServerRefusalsAreExplainedAndKeepAllChoices)
{
    const QString text = write("a.txt", "text\n");
    start();
    EXPECT_TRUE(m_batch.result("setTicket {\"kept\":\"yes\"}").isNull());
    ASSERT_TRUE(m_server.administer("cupsdisable", {"QL70"}));
    // A stopped queue accepts the job. A queue that rejects jobs refuses it, stopped or not.
    const int kept = print(text)["result"].toObject()["job"].toInt();
    EXPECT_GT(kept, 0);
    EXPECT_EQ(m_server.recordedCount(), 0);
    ASSERT_TRUE(m_server.administer("cupsenable", {"QL70"}));
    EXPECT_EQ(m_server.recorded(kept).data, "text\n");
    EXPECT_THAT(print(write("empty.txt", ""))["error"].toString().toStdString(), HasSubstr("empty.txt is empty."));
    ASSERT_TRUE(m_server.administer("cupsreject", {"QL70"}));
    EXPECT_THAT(print(text)["error"].toString().toStdString(), HasSubstr("takes no jobs"));
    ASSERT_TRUE(m_server.administer("lpadmin", {"-x", "QL70"}));
    EXPECT_THAT(print(text)["error"].toString().toStdString(), HasSubstr("no printer QL70"));
    m_server.stop();
    EXPECT_THAT(print(text)["error"].toString().toStdString(), HasSubstr("does not answer"));
    EXPECT_EQ(m_batch.result("ticket").toObject()["kept"], "yes");
    EXPECT_EQ(m_batch.finish(), 1);
    EXPECT_EQ(m_server.recordedCount(), 1);
}

TEST_F(Printing, WithoutAUsableQueueTheProgramEndsWithStatus2)
{
    ASSERT_TRUE(m_server.addQueue("RAW"));
    for (const QStringList &arguments :
         {QStringList{"--batch", "/dev/null"}, QStringList{"--batch", "/dev/null", "--queue", "nowhere"},
          QStringList{"--batch", "/dev/null", "--queue", "RAW"},
          QStringList{"--screenshot", m_folder.filePath("w.png"), "--queue", "RAW"}}) {
        BatchProcess batch;
        batch.setVariable("CUPS_SERVER", m_server.address());
        batch.runToEnd(arguments);
        EXPECT_EQ(batch.finish(), 2);
        EXPECT_EQ(batch.standardError().count('\n'), 1) << arguments.join(' ').toStdString();
    }
}

TEST_F(Printing, ATruncatedPpdIsReportedWithQueueAndReason)
{
    useServerHere();
    QFile whole(BV_SOURCE_DIR "/resources/QL70.ppd");
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray text = whole.readAll();
    ASSERT_TRUE(m_server.addQueue("CUT", write("cut.ppd", text.left(text.lastIndexOf("*CloseUI")))));
    bv::CallControl control;
    const auto fetched = bv::PrintServer::ppd("CUT", control);
    ASSERT_TRUE(fetched);
    const auto ppd = bv::PpdFile::open(fetched.value());
    ASSERT_FALSE(ppd);
    EXPECT_THAT(ppd.error().toStdString(), AllOf(HasSubstr("of the printer CUT is cut off"), Not(HasSubstr("tmp"))));
}

TEST_F(Printing, QueuesAreListedWithTheirDetails)
{
    useServerHere();
    ASSERT_TRUE(m_server.addQueue("RAW"));
    ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "RAW", "-D", "Ein Drucker", "-L", "Flur"}));
    ASSERT_TRUE(m_server.administer("cupsdisable", {"RAW"}));
    ASSERT_TRUE(m_server.administer("lpadmin", {"-d", "QL70"}));
    bv::CallControl control;
    const auto queues = bv::PrintServer::queues(control);
    ASSERT_TRUE(queues);
    ASSERT_EQ(queues.value().size(), 2U);
    const bv::PrintQueue &ours = queues.value()[0];
    const bv::PrintQueue &raw = queues.value()[1];
    EXPECT_EQ(ours.name, "QL70");
    EXPECT_TRUE(ours.isDefault && ours.acceptsJobs && !ours.isStopped);
    EXPECT_THAT(ours.deviceUri.value_or(QString()).toStdString(), HasSubstr("rec:"));
    EXPECT_EQ(raw.description, "Ein Drucker");
    EXPECT_EQ(raw.location, "Flur");
    EXPECT_TRUE(raw.isStopped && !raw.isDefault);
    EXPECT_FALSE(bv::PrintServer::ppd("RAW", control));
    // A class has the PPD of its first member.
    ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "QL70", "-c", "Both"}));
    EXPECT_TRUE(bv::PrintServer::ppd("Both", control));
}

} // namespace
