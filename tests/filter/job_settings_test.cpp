// SPDX-License-Identifier: GPL-2.0-or-later
// Settings that result from a job's options.
#include "filter/JobSettings.h"

#include "profiles/DevicePath.h"
#include "profiles/QuickColorPresets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <utility>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class JobSettings : public testing::Test
{
protected:
    JobSettings() : m_ppd(ppdOpenFile(BV_SOURCE_DIR "/resources/QL70.ppd"), ppdClose) {}

    bv::JobSettings of(const std::string &options) { return bv::jobSettings(m_ppd.get(), options.c_str()); }

    // The resulting choices by option. Fails if an option appears twice.
    std::map<std::string, std::string> choices(const std::string &options)
    {
        std::map<std::string, std::string> found;
        for (const bv::Setting &setting : of(options).settings)
            EXPECT_TRUE(found.emplace(setting.option, setting.choice).second) << setting.option;
        return found;
    }

    const std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> m_ppd;
};

std::string profile(const std::string &option, const std::string &path, const std::string &flag = "=True")
{
    return " " + option + "Custom" + flag + " " + option + "CustomFilename=" + bv::encodeDevicePath(path);
}

TEST_F(JobSettings, APresetOverridesTheJobsOwnChoices)
{
    const auto photo = choices("BVQuickColor=Photo BVImageRenderIntent=Saturation BVTextHalftone=Detail" +
                               profile("BVImageRGBSource", "/ata1a/data/USfiles/Profiles/a.icc"));
    EXPECT_THAT(photo, SizeIs(21));
    EXPECT_EQ(photo.at("BVImageRGBSource"), "sRGB");
    EXPECT_EQ(photo.at("BVImageRenderIntent"), "Perceptual");
    EXPECT_EQ(photo.at("BVTextHalftone"), "Gradation");
    EXPECT_EQ(photo.at("BVSimSource"), "None");
    // The PPD's default Quick Color is a preset too.
    EXPECT_EQ(choices("").at("BVTextRenderIntent"), "Saturation");
}

TEST_F(JobSettings, EconomyPrintTurnsOffSomeEdgesOfAPreset)
{
    const auto edges = [this](const std::string &options) {
        const auto found = choices(options);
        return found.at("BVImageEdgeEnhance") + found.at("BVTextEdgeEnhance") + found.at("BVGraphicsEdgeEnhance");
    };
    EXPECT_EQ(edges("BVQuickColor=General"), "OffOnOn");
    EXPECT_EQ(edges("BVQuickColor=General BVEconoMode=True"), "OffOnOff");
    EXPECT_EQ(edges("BVQuickColor=Photo BVEconoMode=True"), "OffOffOff");
    EXPECT_EQ(edges("BVQuickColor=Presentation BVEconoMode"), "OffOnOff");
}

TEST_F(JobSettings, ManualKeepsTheJobsOwnChoicesAndUsesPrinterProfiles)
{
    EXPECT_THAT(choices("BVQuickColor=Manual BVImageRenderIntent=Saturation BVEconoMode=True"), IsEmpty());
    const bv::JobSettings job =
        of("BVQuickColor=Manual" + profile("BVImageRGBSource", "/ata1a/data/USfiles/Profiles/a(1).icc") +
           profile("BVSimSource", "/ataCf1a/data/USfiles/Profiles/PRESS", ""));
    ASSERT_THAT(job.settings, SizeIs(2));
    EXPECT_THAT(job.warnings, IsEmpty());
    EXPECT_EQ(job.settings[0].code, "<</DeviceRenderingInfo<</Type 70/BVImageRGBSource"
                                    "(/ata1a/data/USfiles/Profiles/a\\(1\\).icc)>>>>setpagedevice");
    EXPECT_EQ(job.settings[1].option, "BVSimSource");
}

TEST_F(JobSettings, AnInvalidProfileKeepsTheChoiceAndGivesAWarning)
{
    const std::string disk = "/ata1a/data/USfiles/Profiles/";
    for (const std::string &path :
         {std::string(), disk, disk + "../x", disk + "sub/x.icc", std::string("/etc/passwd"), disk + "x.icc4",
          disk + "x\n.icc", disk + ".icc", "x" + disk + "a.icc", disk + "a b.icc", std::string("x.icc")}) {
        const bv::JobSettings job = of("BVQuickColor=Manual" + profile("BVTextRGBSource", path));
        EXPECT_THAT(job.settings, IsEmpty()) << path;
        EXPECT_THAT(job.warnings, ElementsAre(HasSubstr("BVTextRGBSource"))) << path;
    }
    // Encoded wrongly, with half a byte at the end, and not encoded at all.
    const std::string good = bv::encodeDevicePath(disk + "a.icc");
    for (const std::string &text : {"@" + good.substr(1), good + "4", std::string("zz")})
        EXPECT_THAT(of("BVQuickColor=Manual BVTextRGBSourceCustom BVTextRGBSourceCustomFilename=" + text).warnings,
                    SizeIs(1))
            << text;
    EXPECT_THAT(of("BVQuickColor=Manual BVTextRGBSourceCustom").warnings, SizeIs(1));
    // Without the flag, or with a flag that belongs to another option, there is no profile and no warning.
    EXPECT_THAT(of("BVQuickColor=Manual" + profile("BVTextRGBSource", disk + "a.icc", "=False")).settings, IsEmpty());
    EXPECT_THAT(of("BVQuickColor=Manual" + profile("BVTextHalftone", disk + "a.icc")).settings, IsEmpty());
}

TEST_F(JobSettings, PrintColorModeGrayTurnsOnThePrintersGrayOption)
{
    EXPECT_THAT(choices("BVQuickColor=Manual print-color-mode=monochrome BVColorAsGray=False BVColorSeparation=True"),
                UnorderedElementsAre(Pair("BVColorAsGray", "True"), Pair("BVColorSeparation", "False")));
    // The PPD's preset for gray does the same to a job that says nothing of gray, and leaves the separation.
    EXPECT_THAT(choices("BVQuickColor=Manual print-color-mode=monochrome BVColorSeparation=True"),
                ElementsAre(Pair("BVColorSeparation", "False")));
    // The print server adds "color" to every job that lacks the attribute, so it must not turn gray off.
    EXPECT_THAT(choices("BVQuickColor=Manual print-color-mode=color BVColorAsGray=True"), IsEmpty());
}

TEST_F(JobSettings, APresetKeepsTheJobsChoiceWhenThePpdLacksItsOwn)
{
    ppd_option_t *halftone = ppdFindOption(m_ppd.get(), "BVTextHalftone");
    const int all = std::exchange(halftone->num_choices, 1);
    EXPECT_THAT(choices("BVQuickColor=Photo"), SizeIs(20));
    halftone->num_choices = all; // libcups frees as many as it counts
}

} // namespace
