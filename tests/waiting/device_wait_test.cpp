// SPDX-License-Identifier: GPL-2.0-or-later
// The window while our panel waits for a printer that is silent: with the real plug-in, helper and walk.
#include "dialog/DialogWorld.h"
#include "support/ListRoot.h"

#include "dialog/WindowSettings.h"
#include "waiting/DeviceWait.h"
#include "waiting/InputGate.h"
#include "widgets/WaitPanel.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QNetworkDatagram>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class SilentPrinter : public bvtest::DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        loadPlugin(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"));
        bv::rememberPreviewFolded(true); // an unfolded one has a process of its own
        ASSERT_TRUE(m_printer.bind(QHostAddress::LocalHost, 0));
        root.write("snmp/snmp.conf", "mibs :\ndefaultPort " + std::to_string(m_printer.localPort()) + "\n");
        setenv("SNMPCONFPATH", root.file("snmp").c_str(), 1);
        setenv("SNMP_PERSISTENT_DIR", root.file("snmp").c_str(), 1);
        for (const char *queue : {"One", "Two"})
            source.add(queue, BV_SOURCE_DIR "/resources/QL70.ppd");
        for (bv::PrintQueue &queue : source.listed)
            queue.deviceUri = QStringLiteral("lpd://127.0.0.1/") + queue.name;
        m_timer.setInterval(5);
        // Runs inside the wait's own event loop too.
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_longest = std::max(m_longest, m_gap.restart());
            auto *skip = dialog ? dialog->findChild<QPushButton *>("skipWait") : nullptr;
            if (skip && skip->isVisible() && m_printer.hasPendingDatagrams() && m_whenWaiting)
                std::exchange(m_whenWaiting, {})(skip);
        });
    }

    // Opens a queue, and does this once the window waits for the printer.
    void openAndWait(const QString &queue, std::function<void(QPushButton *)> whenWaiting)
    {
        m_whenWaiting = std::move(whenWaiting);
        m_gap.start();
        m_timer.start();
        make({queue, std::nullopt, {document}});
        dialog->show();
    }

    void expectNoChildAndNoRest()
    {
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
        EXPECT_EQ(errno, ECHILD);
        EXPECT_FALSE(std::filesystem::exists(bvtest::TestRoot::listFile().string() + ".part"));
        // For the log of the test; no test judges it.
        std::printf("silent printer: the event loop stood still for at most %lld ms\n",
                    static_cast<long long>(m_longest));
    }
    bool isReady()
    {
        return QTest::qWaitFor([this] { return dialog->printReason().isEmpty(); }, 30000);
    }

    bvtest::ListRoot root;
    QUdpSocket m_printer; // takes every question and answers none
    QTimer m_timer;
    QElapsedTimer m_gap;
    qint64 m_longest = 0;
    std::function<void(QPushButton *)> m_whenWaiting;
};

TEST_F(SilentPrinter, CanBeSkippedAndIsLeftAloneForAWhile)
{
    openAndWait("One", [this](QPushButton *skip) {
        EXPECT_TRUE(find<QLabel>("placeText")->text().contains("“One”"));
        EXPECT_TRUE(find<QWidget>("waitIndicator")->isVisible());
        EXPECT_FALSE(find<QSpinBox>("copies")->isEnabled());
        EXPECT_FALSE(find<QComboBox>("printer")->isEnabled());
        EXPECT_FALSE(skip->hasFocus());
        // All of this is lost.
        QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Up);
        QTest::mouseClick(find<QPushButton>("print"), Qt::LeftButton);
        QTest::mouseClick(find<QPushButton>("documentAdd"), Qt::LeftButton);
        QTest::mouseClick(skip, Qt::LeftButton);
    });
    ASSERT_TRUE(isReady());
    EXPECT_NE(dialog->findChild<QComboBox *>("menu_QuickColor"), nullptr);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_EQ(dialog->focusWidget(), find<QSpinBox>("copies"));
    EXPECT_TRUE(find<QLabel>("paneNote")->text().contains("did not answer"));
    expectNoChildAndNoRest();

    // Another queue leads to the same printer.
    while (m_printer.hasPendingDatagrams())
        m_printer.receiveDatagram();
    auto *printers = find<QComboBox>("printer");
    printers->setCurrentIndex(printers->findData("Two"));
    ASSERT_TRUE(isReady());
    EXPECT_TRUE(find<QLabel>("paneNote")->isVisible());
    EXPECT_FALSE(m_printer.hasPendingDatagrams());
}

TEST_F(SilentPrinter, CancelClosesTheDialogInTheMiddleOfTheWait)
{
    bool wasClosed = false;
    openAndWait("One", [&](QPushButton *) {
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        wasClosed = !dialog->isVisible();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return wasClosed; }, 30000));
    EXPECT_TRUE(dialog->isWaiting());
    expectNoChildAndNoRest();
}

TEST(DeviceWait, TheNoteGoesWhenTheDeviceAnswers)
{
    QDialog dialog;
    bv::WaitPanel panel(&dialog);
    bv::InputGate gate(&dialog);
    bv::DeviceWait wait(&panel, &gate, &panel);
    wait.begin("Hall");
    EXPECT_TRUE(wait.wantsDevice("10.0.0.1"));
    wait.deviceAsked("10.0.0.1", false, 1);
    EXPECT_FALSE(wait.wantsDevice("10.0.0.1"));
    EXPECT_TRUE(wait.wantsDevice("10.0.0.2"));
    EXPECT_TRUE(wait.note("10.0.0.1").contains("January"));
    // What failed wrote the list, here and in another window.
    constexpr int64_t kAfterFailure = 4'000'000'000;
    wait.deviceAsked("10.0.0.1", false, kAfterFailure);
    EXPECT_TRUE(wait.note("10.0.0.1").contains("January"));
    bv::DeviceWait later(&panel, &gate, &panel);
    later.deviceAsked("10.0.0.1", false, kAfterFailure);
    EXPECT_EQ(later.note("10.0.0.1"), wait.note("10.0.0.1"));
    wait.deviceAsked("10.0.0.1", true, 1);
    EXPECT_TRUE(wait.wantsDevice("10.0.0.1"));
    EXPECT_EQ(wait.note("10.0.0.1"), QString());
    later.deviceAsked("10.0.0.1", false, kAfterFailure);
    EXPECT_FALSE(later.note("10.0.0.1").contains("January")) << "it listed its profiles just now";
    later.deviceAsked("10.0.0.1", false, 0);
    EXPECT_TRUE(later.note("10.0.0.1").contains("None")) << "the list is gone";
    // Outside a preparation a panel waits as in any dialog.
    wait.giveUp();
    wait.end();
    std::array<int, 2> ends;
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[1]);
    EXPECT_EQ(wait.waitForInput(ends[0], std::nullopt), bv::PanelWait::End::Input);
    wait.begin("Hall");
    wait.giveUp();
    EXPECT_EQ(wait.waitForInput(ends[0], std::nullopt), bv::PanelWait::End::GaveUp);
    close(ends[0]);
}

} // namespace
