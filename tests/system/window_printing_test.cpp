// The dialog's window against a private print server: choices made with keys and mouse in our pane, and what becomes of
// them in the server's jobs, in the next opening, and when a job fails.
#include "support/PrivateCupsd.h"

#include "dialog/PrintDialog.h"
#include "jobs/PrintServerSink.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bv::PrintDialog;
using bvtest::PrivateCupsd;
using bvtest::RecordedJob;
using ::testing::HasSubstr;

constexpr int kPhoto = 1;

class WindowPrinting : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", m_server.copyingPpd(BV_SOURCE_DIR "/resources/QL70.ppd")));
        m_server.useHere(m_folder.path());
        qputenv("BVCO_ROOT", m_folder.filePath("root").toUtf8());
        const auto loaded = m_loader.load(QStringLiteral(BV_BUILD_DIR "/lib/bvco/bvco.so"));
        ASSERT_TRUE(loaded) << loaded.error().toStdString();
        m_first = write("first ü.txt", "first\n\x01\xff bytes\n");
        m_second = write("second.txt", "second\n");
    }

    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    // Opens the window on the queue and waits until it is ready.
    void open(const QStringList &documents = {})
    {
        m_dialog = std::make_unique<PrintDialog>(*m_source, m_sink, m_loader, m_remembered,
                                                 bv::PrintDialogStart{QStringLiteral("QL70"), std::nullopt, documents});
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
    QCheckBox *economy() { return find<QCheckBox>("check_EconomyPrint"); }
    QSpinBox *copies() { return find<QSpinBox>("copies"); }
    void click(const char *button)
    {
        auto *found = find<QAbstractButton>(button);
        QTest::mouseClick(found, Qt::LeftButton, {}, {5, found->height() / 2});
    }

    // Quick Color "Photo", Economy Print, two copies, the first two pages.
    void choose()
    {
        QTest::keyClick(quickColor(), Qt::Key_Down);
        click("check_EconomyPrint");
        copies()->selectAll();
        QTest::keyClicks(copies(), "2");
        click("somePages");
        QTest::keyClicks(find<QLineEdit>("pageRange"), "1-2");
        expectChoices();
    }
    void expectChoices()
    {
        EXPECT_EQ(quickColor()->currentIndex(), kPhoto);
        EXPECT_EQ(quickColor()->currentText(), "Photo");
        EXPECT_TRUE(economy()->isChecked());
        EXPECT_EQ(copies()->value(), 2);
        EXPECT_EQ(find<QLineEdit>("pageRange")->text(), "1-2");
    }
    void expectDefaults()
    {
        EXPECT_EQ(quickColor()->currentIndex(), 0);
        EXPECT_FALSE(economy()->isChecked());
    }

    // Clicks Print and waits for the job to be taken or refused; whether it was taken.
    bool print()
    {
        QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
        EXPECT_EQ(m_dialog->printReason().toStdString(), "");
        click("print");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !printed.isEmpty() || !m_dialog->messageText().isEmpty(); }, 30000));
        return !printed.isEmpty();
    }
    std::string message() const { return m_dialog->messageText().toStdString(); }

    PrivateCupsd m_server;
    QTemporaryDir m_folder;
    QString m_first;
    QString m_second;
    bv::PanelLoader m_loader;
    std::unique_ptr<bv::QueueSource> m_source = bv::makeServerSource();
    bv::PrintServerSink m_sink;
    bv::RememberedTickets m_remembered{m_folder.filePath("tickets")};
    std::unique_ptr<PrintDialog> m_dialog;
};

TEST_F(WindowPrinting, WhatIsChosenIsPrintedAndFoundAgainTheNextTime)
{
    open({m_first, m_second});
    expectDefaults();
    choose();
    ASSERT_TRUE(print());
    EXPECT_FALSE(m_dialog->isVisible());

    const auto states = PrivateCupsd::jobStates("QL70");
    ASSERT_EQ(states.size(), 1U);
    RecordedJob got = m_server.recorded(states.begin()->first);
    EXPECT_EQ(m_server.recordedCount(), 1);
    EXPECT_EQ(got.data, "first\n\x01\xff bytes\nsecond\n");
    EXPECT_EQ(got.arguments[3], "2");
    // The preset's meaning, and what the dialog's own rows say.
    for (const auto &[option, choice] : std::map<QString, const char *>{{"BVQuickColor", "Photo"},
                                                                        {"BVEconoMode", "true"},
                                                                        {"BVColorAsGray", "false"},
                                                                        {"BVImageRenderIntent", "Perceptual"},
                                                                        {"BVTextRenderIntent", "Perceptual"},
                                                                        {"BVGraphicsRenderIntent", "Perceptual"},
                                                                        {"BVTextGrayTreatment", "FourColor"},
                                                                        {"BVTextHalftone", "Gradation"},
                                                                        {"BVTextEdgeEnhance", "Off"},
                                                                        {"PageSize", "A4"},
                                                                        {"page-ranges", "1-2"},
                                                                        {"print-color-mode", "color"}})
        EXPECT_EQ(got.options[option].toStdString(), choice) << option.toStdString();
    // The ticket as it is kept is the ticket that was sent.
    const auto ticket = m_remembered.load("QL70");
    ASSERT_TRUE(ticket);
    size_t compared = 0;
    for (const auto &[key, value] : ticket->entries) {
        if (!value.string())
            continue;
        EXPECT_EQ(bvtest::asCarried(got.options[key]), bvtest::asCarried(*value.string())) << key.toStdString();
        ++compared;
    }
    EXPECT_GE(compared, 29U);

    open();
    EXPECT_EQ(quickColor()->currentIndex(), kPhoto);
    EXPECT_TRUE(economy()->isChecked());
    EXPECT_EQ(copies()->value(), 1);
    EXPECT_TRUE(find<QAbstractButton>("allPages")->isChecked());
    EXPECT_EQ(find<QListWidget>("documentList")->count(), 0);
}

TEST_F(WindowPrinting, ARefusedDocumentCancelsTheJobLosesNoChoiceAndTheOthersPrintWithoutIt)
{
    const QString picture =
        write("picture.png", QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000000100000001"));
    open({m_first, picture, m_second});
    choose();
    EXPECT_FALSE(print());
    EXPECT_THAT(message(), HasSubstr("picture.png"));
    EXPECT_TRUE(m_dialog->isVisible());
    expectChoices();
    EXPECT_FALSE(m_remembered.load("QL70"));
    auto states = PrivateCupsd::jobStates("QL70");
    ASSERT_EQ(states.size(), 1U);
    EXPECT_EQ(states.begin()->second, IPP_JSTATE_CANCELED);
    EXPECT_EQ(m_server.recordedCount(), 0);

    find<QListWidget>("documentList")->setCurrentRow(1);
    click("documentRemove");
    ASSERT_TRUE(print());
    states = PrivateCupsd::jobStates("QL70");
    ASSERT_EQ(states.size(), 2U);
    RecordedJob got = m_server.recorded(states.rbegin()->first);
    EXPECT_EQ(got.data, "first\n\x01\xff bytes\nsecond\n");
    EXPECT_EQ(got.options["BVQuickColor"], "Photo");
    EXPECT_EQ(m_server.recordedCount(), 1);
}

TEST_F(WindowPrinting, CancelPrintsNothingAndKeepsNothing)
{
    open({m_first});
    choose();
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_TRUE(PrivateCupsd::jobStates("QL70").empty());
    EXPECT_FALSE(m_remembered.load("QL70"));
    open({m_first});
    expectDefaults();
}

TEST_F(WindowPrinting, AQueueOrServerThatGoesWhileTheWindowIsOpenIsSaidAndNoChoiceIsLost)
{
    open({m_first});
    choose();
    ASSERT_TRUE(m_server.administer("cupsreject", {"QL70"}));
    EXPECT_FALSE(print());
    EXPECT_THAT(message(), HasSubstr("takes no jobs"));
    EXPECT_TRUE(PrivateCupsd::jobStates("QL70").empty());
    m_server.stop();
    EXPECT_FALSE(print());
    EXPECT_THAT(message(), HasSubstr("does not answer"));
    expectChoices();
    EXPECT_FALSE(m_remembered.load("QL70"));

    // The next window finds no server at all, and says what to do.
    open({m_first});
    EXPECT_THAT(message(), HasSubstr("does not answer"));
    EXPECT_NE(m_dialog->printReason().toStdString(), "");
    EXPECT_FALSE(find<QAbstractButton>("print")->isEnabled());
    EXPECT_EQ(m_server.recordedCount(), 0);
}

} // namespace
