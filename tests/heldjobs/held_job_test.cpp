// SPDX-License-Identifier: GPL-2.0-or-later
// Jobs of other programs that an administrator's default holds: from lp to what the backend got, through the window and
// through a batch, and what is said of jobs that cannot be had.
#include "support/BatchProcess.h"
#include "support/PrivateCupsd.h"

#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "heldjobs/HeldJobCopies.h"
#include "heldjobs/HeldJobSink.h"
#include "heldjobs/HeldJobWindow.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "widgets/DocumentList.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::JobName;
using bv::PrintDialog;
using bvtest::BatchProcess;
using bvtest::PrivateCupsd;
using bvtest::RecordedJob;
using ::testing::HasSubstr;

constexpr char kDocument[] = BV_SOURCE_DIR "/resources/demo/sample.pdf";
constexpr int kPatience = 30000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class HeldJobs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.copyingPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "QL70", "-o", "job-hold-until-default=indefinite"}));
        m_server.useHere(m_folder.path());
        qputenv("BVCO_ROOT", m_folder.filePath("root").toUtf8());
    }
    void TearDown() override { m_dialog.reset(); }

    // Prints like another program. Returns the number of the job.
    int lp(const QStringList &options, const QStringList &documents = {kDocument})
    {
        EXPECT_TRUE(m_server.administer("lp", QStringList{"-d", "QL70"} + options + documents));
        return ++m_jobs;
    }
    ipp_jstate_t stateOf(int job) { return PrivateCupsd::jobStates("QL70")[job]; }

    // Opens the window on a held job, and waits until it is ready and has its copies.
    void open(int job)
    {
        const auto loaded = m_loader.load(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"), {});
        ASSERT_TRUE(loaded) << loaded.error().toStdString();
        bv::CallControl control;
        const auto found = bv::findHeldJob({job, {}}, control);
        ASSERT_TRUE(found) << found.error().toStdString();
        bv::PrintDialogStart start;
        start.queue = found.value().queue;
        start.jobOptions = found.value().attributes.options;
        m_dialog =
            std::make_unique<PrintDialog>(bv::makeServerSource(), std::make_shared<bv::HeldJobSink>(found.value()),
                                          m_loader, m_remembered, std::move(start));
        new bv::HeldJobWindow(*m_dialog, found.value());
        QSignalSpy ready(m_dialog.get(), &PrintDialog::ready);
        m_dialog->show();
        ASSERT_TRUE(ready.wait());
        ASSERT_TRUE(QTest::qWaitFor([&] { return copies().size() == found.value().documents; }, kPatience));
    }
    QStringList copies() const { return m_dialog->parts().documents->documents(); }

    template <typename Widget> Widget *find(const char *name)
    {
        auto *widget = m_dialog->findChild<Widget *>(QLatin1String(name));
        if (!widget)
            ADD_FAILURE() << name;
        return widget;
    }
    void click(const char *button) { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton, {}, {5, 8}); }
    bool waitForEnd()
    {
        return QTest::qWaitFor([&] { return !m_dialog->isVisible(); }, kPatience);
    }

    PrivateCupsd m_server;
    QTemporaryDir m_folder;
    bv::PanelLoader m_loader;
    bv::RememberedTickets m_remembered{m_folder.filePath("tickets")};
    std::unique_ptr<PrintDialog> m_dialog;
    int m_jobs = 0;
};

TEST_F(HeldJobs, TheWindowShowsTheJobsOwnOptionsAndReleasesItWithTheNewOnes)
{
    bv::PrintDictionary last;
    last.setValue("BVQuickColor", bv::PrintValue(QStringLiteral("Presentation")));
    ASSERT_TRUE(m_remembered.store("QL70", last));
    const int job = lp(
        {"-n", "2", "-P", "2-3", "-o", "BVQuickColor=Photo", "-o", "sides=two-sided-long-edge", "-o", "number-up=2"});
    EXPECT_EQ(stateOf(job), IPP_JSTATE_HELD);
    open(job);
    EXPECT_EQ(find<QComboBox>("menu_QuickColor")->currentText(), "Photo");
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentData().toString(), "DuplexNoTumble");
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 2);
    EXPECT_EQ(find<QLineEdit>("pageRange")->text(), "2-3");
    EXPECT_THAT(find<QLabel>("heldJob")->text().toStdString(), HasSubstr("sample.pdf"));
    ASSERT_EQ(copies().size(), 1);
    EXPECT_TRUE(copies()[0].endsWith("/sample.pdf"));
    EXPECT_EQ(contentOf(copies()[0]), contentOf(kDocument));

    find<QComboBox>("menu_QuickColor")->setCurrentIndex(0);
    emit find<QComboBox>("menu_QuickColor")->activated(0);
    auto *duplex = find<QComboBox>("row_Duplex");
    duplex->setCurrentIndex(duplex->findData("None"));
    find<QSpinBox>("copies")->setValue(1);
    find<QAbstractButton>("allPages")->setChecked(true);
    click("print");
    ASSERT_TRUE(waitForEnd()) << m_dialog->messageText().toStdString();
    RecordedJob got = m_server.recorded(job);
    EXPECT_EQ(got.data, contentOf(kDocument));
    EXPECT_EQ(got.arguments[3], "1");
    for (const auto &[option, value] : std::map<QString, const char *>{{"BVQuickColor", "General"},
                                                                       {"Duplex", "None"},
                                                                       {"number-up", "2"},
                                                                       {"sides", "one-sided"},
                                                                       {"page-ranges", "1-2147483647"}})
        EXPECT_EQ(got.options[option].toStdString(), value) << option.toStdString();
    // What is chosen for a job of another program is not what the dialog was last used with.
    EXPECT_EQ(*m_remembered.load("QL70")->value("BVQuickColor").string(), "Presentation");
    EXPECT_EQ(PrivateCupsd::jobStates("QL70").size(), 1U);
}

TEST_F(HeldJobs, TheWindowLeavesAJobHeldOrCancelsItAsTheUserSays)
{
    const int job = lp({"-t", "../a/b"}, {kDocument, kDocument});
    open(job);
    EXPECT_EQ(copies().size(), 2);
    EXPECT_NE(copies()[0], copies()[1]);
    // The window looks at copies, and the job's own documents are counted.
    find<QLineEdit>("pageRange")->setText("1");
    find<QAbstractButton>("somePages")->setChecked(true);
    EXPECT_THAT(m_dialog->printReason().toStdString(), HasSubstr("one document"));
    click("cancel");
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(stateOf(job), IPP_JSTATE_HELD);

    // Somebody else releases it while the window is open.
    open(job);
    ASSERT_TRUE(m_server.administer("lp", {"-i", QString::number(job), "-H", "resume"}));
    m_server.recorded(job);
    ASSERT_TRUE(QTest::qWaitFor([&] { return stateOf(job) == IPP_JSTATE_COMPLETED; }, kPatience));
    click("print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_dialog->messageText().isEmpty(); }, kPatience));
    EXPECT_THAT(m_dialog->messageText().toStdString(), HasSubstr("printed already"));

    const int other = lp({});
    open(other);
    click("cancelHeldJob");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(stateOf(other), IPP_JSTATE_CANCELED);
    EXPECT_EQ(m_server.recordedCount(), 1);
}

TEST_F(HeldJobs, ABatchChangesTheJobAndReleasesItWithPrint)
{
    const int job = lp({"-n", "3", "-o", "BVQuickColor=Presentation", "-o", "BVEconoMode=True"});
    BatchProcess batch;
    batch.setVariable("CUPS_SERVER", m_server.address());
    batch.start({"--job", QStringLiteral("QL70-%1").arg(job)});
    EXPECT_EQ(batch.result("panelView").toString(), "pdeMainView");
    for (const char *command : {"willShow", "restoreValues"})
        EXPECT_TRUE(batch.send(command).contains("result"));
    EXPECT_EQ(batch.result("control menu_QuickColor").toObject().value("value").toInt(), 2);
    EXPECT_EQ(batch.result("control check_EconomyPrint").toObject().value("value").toInt(), 1);
    batch.send("set menu_QuickColor 1");
    EXPECT_FALSE(batch.error(QStringLiteral("print \"%1\"").arg(kDocument)).isEmpty());
    EXPECT_EQ(batch.result("print").toObject().value("job").toInt(), job);
    EXPECT_FALSE(batch.error("print").isEmpty()); // it is held no more
    batch.finish();
    RecordedJob got = m_server.recorded(job);
    EXPECT_EQ(got.data, contentOf(kDocument));
    EXPECT_EQ(got.options["BVQuickColor"], "Photo");
    EXPECT_EQ(got.options["BVEconoMode"], "true");
    EXPECT_EQ(got.arguments[3], "3");

    // Who prints with bvprint has been asked, so such a job is not held.
    BatchProcess own;
    own.setVariable("CUPS_SERVER", m_server.address());
    own.start({"--queue", "QL70"});
    own.send("panelView");
    const int sent = own.result(QStringLiteral("print \"%1\"").arg(kDocument)).toObject().value("job").toInt();
    EXPECT_EQ(m_server.recorded(sent).data, contentOf(kDocument));
}

TEST_F(HeldJobs, AJobThatCannotBeHadIsRefusedInASentence)
{
    ASSERT_TRUE(m_server.addQueue("Other", {}));
    ASSERT_TRUE(m_server.administer("cupsdisable", {"Other"}));
    const int own = lp({});
    const int others = lp({"-U", "somebody"});
    const int canceled = lp({});
    ASSERT_TRUE(m_server.administer("cancel", {QString::number(canceled)}));
    ASSERT_TRUE(m_server.administer("lp", {"-d", "Other", kDocument}));
    const int waiting = ++m_jobs;
    const auto refused = [this](const QStringList &arguments) {
        BatchProcess batch;
        batch.setVariable("CUPS_SERVER", m_server.address());
        batch.runToEnd(arguments + QStringList{"--batch", "-"});
        EXPECT_EQ(batch.finish(), 2) << arguments.join(' ').toStdString();
        return batch.standardError().toStdString();
    };
    const auto job = [](int number) { return QStringList{"--job", QString::number(number)}; };
    EXPECT_THAT(refused(job(others)), HasSubstr("belongs to somebody else"));
    EXPECT_THAT(refused(job(canceled)), HasSubstr("was canceled"));
    EXPECT_THAT(refused(job(waiting)), HasSubstr("is not held"));
    EXPECT_THAT(refused(job(4711)), HasSubstr("has no job 4711"));
    EXPECT_THAT(refused(job(own) + QStringList{"--queue", "Other"}), HasSubstr("“QL70”, not to “Other”"));
    EXPECT_THAT(refused({"--job", QStringLiteral("Other-%1").arg(own)}), HasSubstr("“QL70”, not to “Other”"));
    EXPECT_THAT(refused({"--job", "QL70-x"}), HasSubstr("“QL70-x” is no job"));
    EXPECT_EQ(stateOf(own), IPP_JSTATE_HELD);
}

TEST(JobName, IsANumberOrWhatLpShows)
{
    const auto read = [](const char *text) {
        const JobName name = JobName::fromText(text);
        return std::pair(name.id, name.queue);
    };
    using Read = std::pair<int, QString>;
    EXPECT_EQ(read("12"), Read(12, {}));
    EXPECT_EQ(read("Lab-2-12"), Read(12, "Lab-2"));
    for (const char *wrong : {"", "0", "-12", "QL70", "QL70-", "+3", "QL70-0", "1.5", "99999999999"})
        EXPECT_EQ(read(wrong).first, 0) << wrong;
}

TEST(Copies, AreNamedLikeTheDocumentsAndStayInTheirFolder)
{
    const auto name = [](const char *document, const char *format, const QStringList &taken = {}) {
        return bv::copyName(document, format, 2, taken).toStdString();
    };
    EXPECT_EQ(name("/home/anna/letter.pdf", "application/pdf"), "letter.pdf");
    EXPECT_EQ(name("Letter", "application/pdf"), "Letter.pdf");
    EXPECT_EQ(name("", "text/plain"), "Document 2.txt");
    EXPECT_EQ(name("..", "application/x-unheard-of"), "Document 2");
    EXPECT_EQ(name("../../a.pdf", "application/pdf", {"a.pdf"}), "2-a.pdf");
    EXPECT_LE(bv::copyName(QString(5000, u'x'), "application/pdf", 1, {}).size(), 110);
}

} // namespace
