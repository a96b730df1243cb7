// SPDX-License-Identifier: GPL-2.0-or-later
// The user's defaults on a print server: what lpoptions(1) wrote is read, and what is stored reaches lp(1).
#include "queues/UserDefaults.h"
#include "support/PrivateCupsd.h"

#include "queues/PpdFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::QueueInstance;
using bv::UserDefaults;
using bvtest::PrivateCupsd;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::Pair;

constexpr char kPpd[] = BV_SOURCE_DIR "/resources/QL70.ppd";

// One server for all cases. Each case has a queue of its own.
class Defaults : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_server = std::make_unique<PrivateCupsd>();
        ASSERT_EQ(s_server->start().toStdString(), "");
        s_home = QFileInfo(s_server->address()).path();
        QDir(s_home).mkpath("system");
        qputenv("CUPS_SERVERROOT", (s_home + "/system").toUtf8());
        s_server->useHere(s_home);
        s_ppd = s_server->directPpd(kPpd);
    }
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override
    {
        m_queue = ::testing::UnitTest::GetInstance()->current_test_info()->name();
        ASSERT_TRUE(s_server->addQueue(m_queue, s_ppd));
        write("document.ps", "%!PS\n");
        m_defaults = std::make_unique<UserDefaults>(s_home + "/replaced");
    }

    static void write(const QString &name, const QByteArray &text)
    {
        QFile file(s_home + u'/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    static QByteArray lpoptionsFile()
    {
        QFile file(s_home + "/.cups/lpoptions");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void lpoptions(const QString &name, const QStringList &options)
    {
        QStringList arguments = {"-p", name};
        for (const QString &option : options)
            arguments << "-o" << option;
        EXPECT_TRUE(s_server->administer("lpoptions", arguments));
    }
    UserDefaults::Options options(const QueueInstance &of) const
    {
        return m_defaults->options(of).value_or(UserDefaults::Options{{"none", ""}});
    }
    // The options of a job that lp sends.
    std::map<QString, QString> printedByLp(const QString &name, const QStringList &more = {})
    {
        EXPECT_TRUE(s_server->administer("lp", QStringList{"-d", name} + more + QStringList{s_home + "/document.ps"}));
        return s_server->recorded(++s_job).options;
    }

    static inline std::unique_ptr<PrivateCupsd> s_server;
    static inline QString s_home;
    static inline QString s_ppd;
    static inline int s_job = 0;
    QString m_queue;
    std::unique_ptr<UserDefaults> m_defaults;
};

TEST_F(Defaults, AreWhatLpoptionsSaysAndNotWhatTheServerSays)
{
    EXPECT_THAT(options({m_queue, {}}), IsEmpty());
    ASSERT_TRUE(s_server->administer("lpadmin", {"-p", m_queue, "-o", "job-sheets-default=standard"}));
    write("system/lpoptions", "Dest " + m_queue.toUtf8() + " BVEconoMode=True BVQuickColor=Presentation\n");
    lpoptions(m_queue, {"BVQuickColor=Photo", "print-color-mode=monochrome", "sides=two-sided-long-edge", "number-up=2",
                        "copies=3", "note='a b'"});
    const UserDefaults::Options found = options({m_queue, {}});
    EXPECT_THAT(found, ElementsAre(Pair("BVEconoMode", "True"), Pair("BVQuickColor", "Photo"), Pair("copies", "3"),
                                   Pair("note", "a b"), Pair("number-up", "2"), Pair("print-color-mode", "monochrome"),
                                   Pair("sides", "two-sided-long-edge")));
    const auto ppd = bv::PpdFile::open(kPpd);
    ASSERT_TRUE(ppd);
    std::map<QString, QString> ticket;
    for (const auto &[key, value] : bv::ticketFromDefaults(found, ppd.value().handle()).entries)
        ticket[key] = *value.string();
    EXPECT_THAT(ticket,
                ElementsAre(Pair("BVColorAsGray", "True"), Pair("BVEconoMode", "True"), Pair("BVQuickColor", "Photo"),
                            Pair("Duplex", "DuplexNoTumble"), Pair("note", "a b"), Pair("number-up", "2")));
    write("system/lpoptions", "");
}

TEST_F(Defaults, ThatAreStoredReachLpAndAreTakenBack)
{
    lpoptions(m_queue, {"BVQuickColor=Photo", "number-up=2"});
    lpoptions(m_queue + "/Old", {"number-up=4"});
    const QByteArray before = lpoptionsFile();
    EXPECT_FALSE(m_defaults->canTakeBack({m_queue, {}}));
    const QString path = "A=B;'x y'\\z";
    EXPECT_EQ(m_defaults->store({m_queue, {}}, {{"BVQuickColor", "Manual"}, {"BVEconoMode", "True"}, {"x", path}}), "");
    // Storing again keeps what was there first.
    EXPECT_EQ(m_defaults->store({m_queue, {}}, {{"BVQuickColor", "Presentation"}, {"number-up", ""}}), "");
    const auto sent = printedByLp(m_queue);
    EXPECT_THAT(sent, Contains(Pair("BVQuickColor", "Presentation")));
    EXPECT_THAT(sent, Contains(Pair("BVEconoMode", "true")));
    EXPECT_THAT(sent, Contains(Pair("x", path)));
    EXPECT_THAT(sent, Not(Contains(Pair("number-up", "2"))));
    EXPECT_THAT(printedByLp(m_queue + "/Old"), Contains(Pair("number-up", "4")));
    EXPECT_TRUE(m_defaults->canTakeBack({m_queue, {}}));
    EXPECT_EQ(m_defaults->takeBack({m_queue, {}}), "");
    EXPECT_EQ(lpoptionsFile(), before);
    EXPECT_NE(m_defaults->takeBack({m_queue, {}}), "");
}

TEST_F(Defaults, GiveWayToStandardOptionsOfAJob)
{
    // What the window then shows as other choices would otherwise go before them.
    lpoptions(m_queue, {"sides=two-sided-short-edge", "print-color-mode=monochrome", "PageRegion=A5"});
    const UserDefaults::Options shown = {
        {"BVColorAsGray", "False"}, {"Duplex", "None"}, {"PageSize", "A4"}, {"Resolution", "600dpi"}};
    EXPECT_EQ(m_defaults->store({m_queue, {}}, shown), "");
    EXPECT_THAT(options({m_queue, {}}), ElementsAre(Pair("BVColorAsGray", "False"), Pair("Resolution", "600dpi"),
                                                    Pair("media", "A4"), Pair("sides", "one-sided")));
    const auto sent = printedByLp(m_queue, {"-o", "sides=two-sided-long-edge", "-o", "media=A5"});
    // The server adds the PPD's choices to those of the job.
    EXPECT_THAT(sent, Contains(Pair("Duplex", "DuplexNoTumble")));
    EXPECT_THAT(sent, Contains(Pair("PageSize", "A5")));
    EXPECT_THAT(sent, Not(Contains(Pair("print-color-mode", "monochrome"))));
    // The computer's file cannot be changed, so its option is overruled under its own name.
    write("system/lpoptions", "Dest " + m_queue.toUtf8() + " Duplex=DuplexTumble\n");
    EXPECT_EQ(m_defaults->store({m_queue, {}}, shown), "");
    EXPECT_THAT(printedByLp(m_queue), Contains(Pair("Duplex", "None")));
    write("system/lpoptions", "");
}

TEST_F(Defaults, UnderANameAreAnInstanceOfTheQueue)
{
    const QueueInstance draft = QueueInstance::fromName(m_queue + "/Draft");
    const QByteArray before = lpoptionsFile();
    EXPECT_EQ(m_defaults->options(draft), std::nullopt);
    EXPECT_NE(m_defaults->store({m_queue, "a b"}, {}), "");
    EXPECT_EQ(m_defaults->store(draft, {{"BVEconoMode", "True"}}), "");
    EXPECT_EQ(m_defaults->instances(m_queue), QStringList("Draft"));
    EXPECT_THAT(options(draft), ElementsAre(Pair("BVEconoMode", "True")));
    EXPECT_THAT(printedByLp(draft.name()), Contains(Pair("BVEconoMode", "true")));
    EXPECT_THAT(printedByLp(m_queue), Not(Contains(Key("BVEconoMode"))));
    EXPECT_EQ(m_defaults->takeBack(draft), "");
    EXPECT_EQ(lpoptionsFile(), before);
}

} // namespace
