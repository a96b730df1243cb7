// SPDX-License-Identifier: GPL-2.0-or-later
// The whole print chain: jobs from other programs and from ours go through the print server's own filters and bvql70 to
// a backend that records what the printer would get.
#include "support/BatchProcess.h"
#include "support/PrivateCupsd.h"

#include "profiles/DevicePath.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bvtest::BatchProcess;
using bvtest::PrivateCupsd;

constexpr char kDocument[] = BV_SOURCE_DIR "/resources/demo/sample.pdf";
constexpr int kColorOptions = 29; // number of options in both panes

class PrintChain : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!m_server.useFilters())
            GTEST_SKIP() << "needs the print server's filters (packages cups and cups-filters)";
        ASSERT_EQ(m_server.start().toStdString(), "");
        ASSERT_TRUE(m_server.addQueue("QL70", BV_SOURCE_DIR "/resources/QL70.ppd"));
        // This renderer keeps text as text.
        ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "QL70", "-o", "pdftops-renderer-default=pdftops"}));
    }

    // The color settings by option in the document that the printer gets. Fails if one appears twice.
    std::map<QString, QString> settingsOf(int job)
    {
        const QByteArray data = m_server.recorded(job).data;
        EXPECT_TRUE(data.startsWith("%!PS-Adobe-")) << data.left(80).constData();
        EXPECT_EQ(data.count("%%EOF"), 1);
        std::map<QString, QString> settings;
        static const QRegularExpression setting(QStringLiteral(R"(<</Type 70/(BV\w+)(/\w+|\(.*\))>>>>setpagedevice)"));
        for (auto matches = setting.globalMatch(QString::fromLatin1(data)); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            EXPECT_TRUE(settings.emplace(match.captured(1), match.captured(2)).second)
                << match.captured(1).toStdString() << " stands there twice";
        }
        EXPECT_EQ(settings.size(), kColorOptions);
        return settings;
    }

    // Prints from our dialog's controls, after the given commands.
    std::map<QString, QString> printedByBatch(const QStringList &commands)
    {
        BatchProcess batch;
        batch.setVariable("CUPS_SERVER", m_server.address());
        batch.start({"--queue", "QL70"});
        for (const QString &command : QStringList{"panelView", "willShow", "restoreValues"} + commands +
                                          QStringList{QStringLiteral("print \"%1\"").arg(kDocument)})
            EXPECT_TRUE(batch.send(command).contains("result")) << command.toStdString();
        return settingsOf(++m_job);
    }

    // Prints like another program, with options as for lp(1). Returns the settings that the printer gets.
    std::map<QString, QString> printed(const QStringList &options)
    {
        QStringList arguments = {"-d", "QL70"};
        for (const QString &option : options)
            arguments << "-o" << option;
        EXPECT_TRUE(m_server.administer("lp", arguments << kDocument));
        return settingsOf(++m_job);
    }

    PrivateCupsd m_server;
    int m_job = 0;
};

TEST_F(PrintChain, AQuickColorFromAnotherProgramSetsItsPreset)
{
    auto photo = printed({"BVQuickColor=Photo", "BVImageRenderIntent=Saturation"});
    EXPECT_EQ(photo["BVQuickColor"], "/Photo");
    EXPECT_EQ(photo["BVImageRenderIntent"], "/Perceptual");
    EXPECT_EQ(photo["BVTextGrayTreatment"], "/FourColor");
    auto manual = printed({"BVQuickColor=Manual", "BVImageRenderIntent=Saturation", "print-color-mode=monochrome"});
    EXPECT_EQ(manual["BVImageRenderIntent"], "/Saturation");
    EXPECT_EQ(manual["BVColorAsGray"], "/True");
    EXPECT_EQ(printed({})["BVColorAsGray"], "/False");
}

TEST_F(PrintChain, ASelectedPrinterProfileReachesThePrinter)
{
    const QString path = QString::fromStdString(bv::encodeDevicePath("/ata1a/data/USfiles/Profiles/A(1).icc"));
    auto settings =
        printed({"BVQuickColor=Manual", "BVTextRGBSourceCustom=True", "BVTextRGBSourceCustomFilename=" + path});
    EXPECT_EQ(settings["BVTextRGBSource"], "(/ata1a/data/USfiles/Profiles/A\\(1\\).icc)");
    EXPECT_EQ(settings["BVImageRGBSource"], "/sRGB");
}

TEST_F(PrintChain, OurDialogAndAnotherProgramPrintTheSame)
{
    const auto ours = printedByBatch({"set menu_QuickColor 2", "set check_EconomyPrint 1"});
    EXPECT_EQ(ours, printed({"BVQuickColor=Presentation", "BVEconoMode=True"}));
}

TEST_F(PrintChain, AHeldJobOfAnotherProgramGetsWhatItsUserChooses)
{
    ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "QL70", "-o", "job-hold-until-default=indefinite"}));
    ASSERT_TRUE(m_server.administer(
        "lp", {"-d", "QL70", "-o", "BVQuickColor=Photo", "-o", "sides=two-sided-long-edge", "-P", "1", kDocument}));
    BatchProcess batch;
    batch.setVariable("CUPS_SERVER", m_server.address());
    batch.start({"--job", "1"});
    for (const QString command : {"panelView", "willShow", "restoreValues", "set menu_QuickColor 2", "print"})
        EXPECT_TRUE(batch.send(command).contains("result")) << command.toStdString();
    EXPECT_EQ(settingsOf(1)["BVQuickColor"], "/Presentation");
    const QByteArray data = m_server.recorded(1).data;
    EXPECT_EQ(data.count("%%Page: "), 1);
    EXPECT_TRUE(data.contains("/Duplex true"));
}

TEST_F(PrintChain, AnAdministratorsColorModeHoldsUntilAUserChooses)
{
    ASSERT_TRUE(m_server.administer("lpadmin", {"-p", "QL70", "-o", "print-color-mode-default=monochrome"}));
    EXPECT_EQ(printed({})["BVColorAsGray"], "/True");
    EXPECT_EQ(printed({"print-color-mode=color"})["BVColorAsGray"], "/False");
    EXPECT_EQ(printedByBatch({})["BVColorAsGray"], "/True");
}

} // namespace
