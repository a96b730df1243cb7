// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog's window with a private print server. Keys and mouse make choices in our pane; the test checks the
// server's job and the next opening.
#include "support/PrivateCupsd.h"

#include "dialog/PrintDialog.h"
#include "jobs/PrintServerSink.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using bv::PrintDialog;
using bvtest::PrivateCupsd;
using bvtest::RecordedJob;

class WindowPrinting : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.copyingPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        m_server.useHere(m_folder.path());
        qputenv("BVCO_ROOT", m_folder.filePath("root").toUtf8());
        const auto loaded = m_loader.load(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"), {});
        ASSERT_TRUE(loaded) << loaded.error().toStdString();
    }

    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    // Opens the window on the queue and waits until it is ready.
    void open(const QStringList &documents, const QString &instance = QString())
    {
        m_dialog =
            std::make_unique<PrintDialog>(m_source, m_sink, m_loader, m_remembered,
                                          bv::PrintDialogStart{"QL70", std::nullopt, documents, {}, instance, true});
        QSignalSpy ready(m_dialog.get(), &PrintDialog::ready);
        m_dialog->show();
        ASSERT_TRUE(ready.wait());
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    template <typename Widget> Widget *find(const char *name)
    {
        auto *widget = m_dialog->findChild<Widget *>(QLatin1String(name));
        if (!widget)
            ADD_FAILURE() << name;
        return widget;
    }
    QComboBox *quickColor() { return find<QComboBox>("menu_QuickColor"); }
    void click(const char *button)
    {
        auto *found = find<QAbstractButton>(button);
        QTest::mouseClick(found, Qt::LeftButton, {}, {5, found->height() / 2});
    }

    PrivateCupsd m_server;
    QTemporaryDir m_folder;
    bv::PanelLoader m_loader;
    std::shared_ptr<const bv::QueueSource> m_source = bv::makeServerSource();
    std::shared_ptr<const bv::JobSink> m_sink = std::make_shared<bv::PrintServerSink>();
    bv::RememberedTickets m_remembered{m_folder.filePath("tickets")};
    std::unique_ptr<PrintDialog> m_dialog;
};

TEST_F(WindowPrinting, ChoicesArePrintedAndRestoredTheNextTime)
{
    open({write("first ü.txt", "first\n\x01\xff bytes\n")});
    EXPECT_EQ(quickColor()->currentText(), "General");
    QTest::keyClick(quickColor(), Qt::Key_Down);
    click("check_EconomyPrint");
    find<QSpinBox>("copies")->selectAll();
    QTest::keyClicks(find<QSpinBox>("copies"), "2");
    click("somePages");
    QTest::keyClicks(find<QLineEdit>("pageRange"), "1-2");
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    click("print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !printed.isEmpty(); }, 30000)) << m_dialog->messageText().toStdString();
    EXPECT_FALSE(m_dialog->isVisible());

    const auto states = PrivateCupsd::jobStates("QL70");
    ASSERT_EQ(states.size(), 1U);
    RecordedJob got = m_server.recorded(states.begin()->first);
    EXPECT_EQ(m_server.recordedCount(), 1);
    EXPECT_EQ(got.data, "first\n\x01\xff bytes\n");
    EXPECT_EQ(got.arguments[3], "2");
    // The choices of the preset, and those of the dialog's own rows.
    for (const auto &[option, choice] : std::map<QString, const char *>{{"BVQuickColor", "Photo"},
                                                                        {"BVEconoMode", "true"},
                                                                        {"BVTextGrayTreatment", "FourColor"},
                                                                        {"PageSize", "A4"},
                                                                        {"page-ranges", "1-2"}})
        EXPECT_EQ(got.options[option].toStdString(), choice) << option.toStdString();
    // Color is the printer's default, and nobody chose it.
    EXPECT_EQ(got.options.count("print-color-mode"), 0U);
    // The remembered ticket is the ticket that was sent, but for what the preset stands for.
    const auto ticket = m_remembered.load("QL70");
    ASSERT_TRUE(ticket);
    size_t compared = 0;
    size_t ofPreset = 0;
    for (const auto &[key, value] : ticket->entries) {
        if (!value.string())
            continue;
        ++compared;
        if (bvtest::asCarried(got.options[key]) == bvtest::asCarried(*value.string()))
            continue;
        ++ofPreset;
        EXPECT_TRUE(QRegularExpression("^BV(Image|Text|Graphics|Sim)").match(key).hasMatch()) << key.toStdString();
    }
    EXPECT_GE(compared, 29U);
    EXPECT_GE(ofPreset, 3U);

    open({});
    EXPECT_EQ(quickColor()->currentText(), "Photo");
    EXPECT_TRUE(find<QCheckBox>("check_EconomyPrint")->isChecked());
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_TRUE(find<QAbstractButton>("allPages")->isChecked());
    EXPECT_EQ(find<QListWidget>("documentList")->count(), 0);
}

TEST_F(WindowPrinting, WhatAPresetPrintsDoesNotReplaceWhatWasTunedByHand)
{
    const QString document = write("a.txt", "a\n");
    open({document});
    QTest::keyClick(quickColor(), Qt::Key_End); // Manual
    auto *tuned = find<QComboBox>("menu_iRGBGrayTreatment");
    tuned->setCurrentIndex(tuned->count() - 1);
    const QString byHand = tuned->currentText();
    QTest::keyClick(quickColor(), Qt::Key_Home);
    QTest::keyClick(quickColor(), Qt::Key_Down); // Photo
    ASSERT_TRUE(m_server.administer("cupsreject", {"QL70"}));
    click("print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_dialog->messageText().isEmpty(); }, 30000));
    EXPECT_EQ(tuned->currentText(), byHand) << "after a job that was refused";
    ASSERT_TRUE(m_server.administer("cupsaccept", {"QL70"}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_dialog->printReason().isEmpty(); }, 30000));
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    click("print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !printed.isEmpty(); }, 30000)) << m_dialog->messageText().toStdString();
    const RecordedJob got = m_server.recorded(PrivateCupsd::jobStates("QL70").begin()->first);
    EXPECT_EQ(got.options.at("BVImageGrayTreatment"), "FourColor") << "the preset's";
    open({});
    EXPECT_EQ(quickColor()->currentText(), "Photo");
    EXPECT_EQ(find<QComboBox>("menu_iRGBGrayTreatment")->currentText(), byHand);
}

TEST_F(WindowPrinting, SaysInTheServersWordsWhyThePrinterStands)
{
    open({write("a.txt", "a\n")});
    auto *printers = find<QComboBox>("printer");
    const auto noteBecomes = [&](const char *words) {
        printers->hidePopup();
        printers->showPopup(); // asks at once
        return QTest::qWaitFor([&] { return find<QLabel>("printerNote")->text().contains(words); }, 30000);
    };
    ASSERT_TRUE(m_server.administer("cupsdisable", {"-r", "Out of toner: call the help desk", "QL70"}));
    EXPECT_TRUE(noteBecomes("Out of toner: call the help desk"));
    EXPECT_EQ(m_dialog->printReason(), QString()) << "the job waits";
    ASSERT_TRUE(m_server.administer("cupsreject", {"-r", "Moved to the cellar", "QL70"}));
    EXPECT_TRUE(noteBecomes("takes no jobs"));
    EXPECT_TRUE(m_dialog->printReason().contains("cellar")) << m_dialog->printReason().toStdString();
}

// The menu's actions are triggered by name; a menu that is open would block the test.
TEST_F(WindowPrinting, StartsFromTheUsersDefaultsStoresThemAndTakesThemBack)
{
    qputenv("XDG_STATE_HOME", m_folder.filePath("state").toUtf8());
    QDir(m_folder.path()).mkpath(".cups");
    const QByteArray before = "Dest QL70 BVQuickColor=Photo Duplex=DuplexTumble number-up=2\n"
                              "Dest QL70/Proof BVQuickColor=Presentation\n";
    const QString file = write(".cups/lpoptions", before);
    const auto lpoptions = [&file] {
        QFile now(file);
        return now.open(QIODevice::ReadOnly) ? now.readAll() : QByteArray();
    };
    open({});
    EXPECT_EQ(quickColor()->currentText(), "Photo");
    click("check_EconomyPrint");
    find<QAction>("useForAll")->trigger();
    EXPECT_TRUE(lpoptions().contains("BVEconoMode=True")) << m_dialog->messageText().toStdString();
    EXPECT_TRUE(lpoptions().contains("sides=two-sided-short-edge")) << lpoptions().constData();
    EXPECT_TRUE(lpoptions().contains("\nDest QL70/Proof BVQuickColor=Presentation\n"));
    // A new window shows what was stored.
    open({});
    EXPECT_TRUE(find<QCheckBox>("check_EconomyPrint")->isChecked());
    find<QAction>("takeBack")->trigger();
    EXPECT_EQ(lpoptions(), before);
    open({write("a.txt", "a\n")}, "Proof");
    EXPECT_EQ(quickColor()->currentText(), "Presentation");
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    click("print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !printed.isEmpty(); }, 30000)) << m_dialog->messageText().toStdString();
    EXPECT_EQ(m_remembered.load("QL70"), std::nullopt);
    open({}, "Nobody");
    EXPECT_TRUE(m_dialog->messageText().contains("Nobody"));
}

} // namespace
