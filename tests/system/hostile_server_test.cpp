// SPDX-License-Identifier: GPL-2.0-or-later
// bvprint, as a batch and as a window, with print servers that misbehave, and with a real one that is stopped.
#include "support/BatchProcess.h"
#include "support/HostileServer.h"
#include "support/PrivateCupsd.h"

#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "jobs/PrintServerSink.h"
#include "queues/BackgroundCall.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

using bv::PrintDialog;
using bvtest::BatchProcess;
using bvtest::HostileServer;
using bvtest::PrivateCupsd;
using ::testing::HasSubstr;

constexpr char kLook[] = "Look whether it was printed before printing again.";
constexpr char kUnreadable[] = "cannot be read";
constexpr char kSilent[] = "does not answer";

// What the server does, what the batch says, and how many jobs and cancels the server saw.
struct Row
{
    std::vector<std::string> behaviors;
    const char *words;
    int created = 0;
    int canceled = 0;
};

void PrintTo(const Row &row, std::ostream *out)
{
    for (const std::string &word : row.behaviors)
        *out << word << ' ';
}

class Hostile : public ::testing::TestWithParam<Row>
{};

// Where the server does not even tell the queue, the program ends with status 2 and one line on standard error.
TEST_P(Hostile, ABatchReportsWhatHappenedAndEnds)
{
    HostileServer server(GetParam().behaviors);
    BatchProcess batch;
    batch.setVariable("CUPS_SERVER", server.address());
    batch.start({"--queue", "QL70"});
    std::string said;
    int status = 1;
    if (GetParam().created == 0) {
        status = 2;
    } else {
        EXPECT_EQ(batch.result("restoreValues"), true);
        said = batch.error("print \"" BV_SOURCE_DIR "/resources/demo/sample.pdf\"").toStdString();
    }
    EXPECT_EQ(batch.finish(), status);
    const QByteArray complaint = batch.standardError();
    if (status == 2)
        said = complaint.toStdString();
    EXPECT_EQ(complaint.count('\n'), status == 2 ? 1 : 0);
    EXPECT_THAT(said, HasSubstr(GetParam().words));
    EXPECT_EQ(complaint.count('\x1b'), 0) << "an escape sequence";
    EXPECT_EQ(said.find("Success"), std::string::npos);
    EXPECT_EQ(server.count("create"), GetParam().created);
    EXPECT_EQ(server.count("cancel"), GetParam().canceled);
    EXPECT_EQ(server.count("chunks"), 0) << "cupsd may print a part of a document that comes in chunks";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Servers, Hostile, ::testing::Values(
    Row{{"any=closes"},                       kSilent},
    Row{{"any=garbage"},                      kSilent},
    Row{{"any=500"},                          "refuses to answer: Internal Server Error"},
    Row{{"any=401"},                          "does not let you in"},
    Row{{"queues=unreadable"},                kUnreadable},
    Row{{"queues=cut"},                       kUnreadable},
    Row{{"queues=mixed-up"},                  kUnreadable},
    Row{{"queues=deep"},                      kUnreadable},
    Row{{"queues=endless"},                   kUnreadable},
    Row{{"queues=refused"},                   "does not tell its printers: No. <img"},
    Row{{"ppd=404"},                          "has no driver"},
    Row{{"ppd=cut"},                          "broke off its answer"},
    Row{{"ppd=huge"},                         "larger than 8 MB"},
    Row{{"ppd=dribbles"},                     kSilent},
    Row{{"create=unreadable"},                "that cannot be read. Nothing was printed.", 1, 0},
    Row{{"create=refused"},                   "QL70 refused the job: No.",  1, 0},
    Row{{"send=refused"},                     "QL70 refused the job: No.",  1, 1},
    Row{{"send=closes"},                      "did not confirm it. The job was canceled", 1, 1},
    Row{{"send=silent"},                      "did not confirm it. The job was canceled", 1, 1},
    Row{{"send=unreadable"},                  "did not confirm it. The job was canceled", 1, 1},
    Row{{"send=cut", "cancel=closes"},        kLook,                        1, 1},
    Row{{"send=closes", "cancel=missing"},    kLook,                        1, 1},
    Row{{"send=refused", "cancel=refused"},   kLook,                        1, 1}));
// clang-format on

// The longest time in which the event loop did not turn.
class Heartbeat
{
public:
    Heartbeat()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { m_longest = std::max(m_longest, m_gap.restart()); });
        m_gap.start();
        m_timer.start(1);
    }
    // For the log of the test; no test judges it.
    void report(const std::string &what) { std::printf("%s: at most %lld ms\n", what.c_str(), longest()); }
    long long longest() { return std::max(m_longest, m_gap.elapsed()); }

private:
    QTimer m_timer;
    QElapsedTimer m_gap;
    qint64 m_longest = 0;
};

class HostileWindow : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("BVCO_ROOT", m_folder.filePath("root").toUtf8());
        qputenv("HOME", m_folder.path().toUtf8());
        const auto loaded = m_loader.load(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"), {});
        ASSERT_TRUE(loaded) << loaded.error().toStdString();
    }

    void show(const QString &server, const QString &document = BV_SOURCE_DIR "/resources/demo/sample.pdf")
    {
        qputenv("CUPS_SERVER", server.toUtf8());
        m_dialog = std::make_unique<PrintDialog>(
            bv::makeServerSource(), std::make_shared<bv::PrintServerSink>(), m_loader, m_remembered,
            bv::PrintDialogStart{QStringLiteral("QL70"), std::nullopt, {document}});
        m_dialog->show();
    }
    void open(const QString &server, const QString &document)
    {
        show(server, document);
        QSignalSpy ready(m_dialog.get(), &PrintDialog::ready);
        ASSERT_TRUE(ready.wait(30000));
        ASSERT_EQ(m_dialog->printReason().toStdString(), "");
    }
    template <typename Widget> Widget *find(const char *name)
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 30000); }

    QTemporaryDir m_folder;
    bv::PanelLoader m_loader;
    bv::RememberedTickets m_remembered{m_folder.filePath("tickets")};
    std::unique_ptr<PrintDialog> m_dialog;
};

TEST_F(HostileWindow, SaysWhatIsWrongWithTheServer)
{
    const std::pair<const char *, const char *> rows[] = {{"queues=closes", kSilent},
                                                          {"queues=endless", kUnreadable},
                                                          {"queues=refused", "does not tell its printers"},
                                                          {"queues=missing", "There is no printer"},
                                                          {"ppd=huge", "larger than 8 MB"},
                                                          {"ppd=garbage", kSilent}};
    for (const auto &[behavior, words] : rows) {
        HostileServer server({behavior});
        Heartbeat heart;
        show(server.address());
        QSignalSpy ready(m_dialog.get(), &PrintDialog::ready);
        ASSERT_TRUE(ready.wait(30000)) << behavior;
        EXPECT_THAT(m_dialog->messageText().toStdString(), HasSubstr(words)) << behavior;
        heart.report(behavior);
    }
}

TEST_F(HostileWindow, CancelEndsEveryWaitAtOnce)
{
    for (const char *operation : {"queues", "ppd", "attributes", "create", "send"}) {
        HostileServer server({std::string(operation) + "=silent"});
        show(server.address());
        const bool isJob = operation[0] != 'q' && operation[0] != 'p';
        Heartbeat heart;
        if (isJob) {
            ASSERT_TRUE(waitFor([&] { return m_dialog->printReason().isEmpty(); }));
            find<QPushButton>("print")->click();
        }
        ASSERT_TRUE(waitFor([&] { return server.count(operation) > 0; })) << operation;
        EXPECT_TRUE(find<QWidget>(isJob ? "sendingRow" : "waitIndicator")->isVisible());
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        EXPECT_FALSE(m_dialog->isVisible());
        m_dialog.reset();
        heart.report(std::string("cancel during ") + operation);
        // A job that may exist is canceled before the program ends.
        EXPECT_TRUE(waitFor([] { return bv::detachedThreadsEnded(); })) << operation;
        EXPECT_EQ(server.count("cancel"), operation == std::string("send") ? 1 : 0) << operation;
    }
}

TEST_F(HostileWindow, ShowsTenThousandQueuesAndForeignTextAsItIs)
{
    for (const char *behavior : {"queues=many", "queues=nasty"}) {
        HostileServer server({behavior});
        Heartbeat heart;
        show(server.address());
        ASSERT_TRUE(waitFor([&] { return m_dialog->printReason().isEmpty(); }));
        heart.report(behavior);
        EXPECT_EQ(find<QComboBox>("printer")->count(), behavior == std::string("queues=many") ? 10000 : 1);
    }
    EXPECT_THAT(find<QComboBox>("printer")->currentText().toStdString(), HasSubstr("<b>x"));
}

class StoppedServer : public HostileWindow
{
protected:
    void SetUp() override
    {
        HostileWindow::SetUp();
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.directPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        m_server.useHere(m_folder.path());
    }
    QString largeDocument()
    {
        QFile file(m_folder.filePath("large.bin"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(1) << 31)); // needs no room on the disk
        return file.fileName();
    }
    void expectNothingInTheQueue()
    {
        EXPECT_TRUE(waitFor([] {
            const auto states = PrivateCupsd::jobStates("QL70");
            return std::all_of(states.begin(), states.end(),
                               [](const auto &one) { return one.second == IPP_JSTATE_CANCELED; });
        }));
        EXPECT_EQ(m_server.recordedCount(), 0);
    }

    PrivateCupsd m_server;
};

TEST_F(StoppedServer, TheWindowOpensOnceItGoesOnAgain)
{
    m_server.pause();
    Heartbeat heart;
    show(m_server.address());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_dialog.get()));
    QTest::qWait(300); // nothing to wait for: nothing happens
    EXPECT_TRUE(find<QWidget>("waitIndicator")->isVisible());
    m_server.goOn();
    EXPECT_TRUE(waitFor([&] { return m_dialog->printReason().isEmpty(); }));
    heart.report("stopped cupsd");
}

TEST_F(StoppedServer, NoPartOfADocumentThatRanOutOfTimeIsPrinted)
{
    const bv::JobRequest job = {"QL70", "large", {largeDocument()}, {}};
    bv::CallControl control;
    std::thread clock([&control] {
        while (control.done() == 0)
            std::this_thread::yield();
        control.allow(std::chrono::milliseconds(0));
    });
    const auto sent = bv::PrintServerSink().submit(job, control);
    clock.join();
    EXPECT_FALSE(sent);
    expectNothingInTheQueue();
}

TEST_F(StoppedServer, AJobCanceledOnItsWayLeavesNothingInTheQueue)
{
    open(m_server.address(), largeDocument());
    for (const bool stop : {false, true}) {
        Heartbeat heart;
        find<QPushButton>("print")->click();
        ASSERT_TRUE(waitFor([&] { return find<QProgressBar>("sendingProgress")->value() > 0; }));
        if (stop)
            m_server.pause();
        QTest::mouseClick(find<QPushButton>("cancelJob"), Qt::LeftButton);
        EXPECT_EQ(m_dialog->printReason(), QString()) << "the window can be used again";
        if (stop)
            m_server.goOn();
        EXPECT_TRUE(waitFor([&] { return m_dialog->messageText().contains("canceled."); }))
            << m_dialog->messageText().toStdString();
        expectNothingInTheQueue();
        heart.report(stop ? "cancel with a stopped cupsd" : "cancel while sending");
    }
}

} // namespace
