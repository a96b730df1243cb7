// SPDX-License-Identifier: GPL-2.0-or-later
// Quick Color selects choices by position. These tests check that the choices at these positions in the PPD fit the
// names of the presets.
#include "profiles/QuickColorPresets.h"

#include <cups/ppd.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace {

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

Ppd openPpd()
{
    Ppd ppd(ppdOpenFile(BV_SOURCE_DIR "/resources/QL70.ppd"));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

struct Meaning
{
    const char *option;
    std::array<const char *, kPresetCount> choice; // General, Photo, Presentation
};

constexpr std::array<const char *, kPresetCount> kQuickColors = {"General", "Photo", "Presentation"};

// General: photos as a camera sees them, text and charts vivid and crisp, gray from black toner alone.
// Photo: everything as an image: perceptual, gray from all four toners, smooth screens, no sharpened edges.
// Presentation: everything as a slide: vivid colors, gray from black toner alone, fine screens, sharpened edges.
// clang-format off
constexpr Meaning kMeanings[] = {
    {"BVImageRGBSource",             {"sRGB", "sRGB", "sRGB"}},
    {"BVImageRenderIntent",          {"Perceptual", "Perceptual", "Saturation"}},
    {"BVImageGrayTreatment",         {"BlackOnly", "FourColor", "BlackOnly"}},
    {"BVImageDestinationProfile",    {"Auto", "Auto", "Auto"}},
    {"BVImageHalftone",              {"Gradation", "Gradation", "Detail"}},
    {"BVImageEdgeEnhance",           {"Off", "Off", "On"}},
    {"BVTextRGBSource",              {"sRGB", "sRGB", "sRGB"}},
    {"BVTextRenderIntent",           {"Saturation", "Perceptual", "Saturation"}},
    {"BVTextGrayTreatment",          {"BlackOnly", "FourColor", "BlackOnly"}},
    {"BVTextDestinationProfile",     {"Auto", "Auto", "Auto"}},
    {"BVTextHalftone",               {"Detail", "Gradation", "Detail"}},
    {"BVTextEdgeEnhance",            {"On", "Off", "On"}},
    {"BVGraphicsRGBSource",          {"sRGB", "sRGB", "sRGB"}},
    {"BVGraphicsRenderIntent",       {"Saturation", "Perceptual", "Saturation"}},
    {"BVGraphicsGrayTreatment",      {"BlackOnly", "FourColor", "BlackOnly"}},
    {"BVGraphicsDestinationProfile", {"Auto", "Auto", "Auto"}},
    {"BVGraphicsHalftone",           {"Gradation", "Gradation", "Detail"}},
    {"BVGraphicsEdgeEnhance",        {"On", "Off", "On"}},
    {"BVSimSource",                  {"None", "None", "None"}},
    {"BVSimRenderIntent",            {"RelativeColorimetric", "RelativeColorimetric", "RelativeColorimetric"}},
    {"BVSimGrayTreatment",           {"AsSpecified", "AsSpecified", "AsSpecified"}},
};
// clang-format on

class Presets : public testing::TestWithParam<int>
{};

TEST_P(Presets, MeanWhatTheirNameSaysAndConflictWithNothing)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    const size_t preset = static_cast<size_t>(GetParam());
    const ppd_option_t *quickColor = ppdFindOption(ppd.get(), "BVQuickColor");
    ASSERT_TRUE(quickColor);
    ASSERT_EQ(quickColor->num_choices, 4) << "the fourth is the free choice";
    EXPECT_STREQ(quickColor->choices[preset].choice, kQuickColors[preset]);

    const std::span<const PresetRow> indexes = quickColorPresets();
    ASSERT_EQ(indexes.size(), std::size(kMeanings));
    ppdMarkOption(ppd.get(), "BVQuickColor", kQuickColors[preset]);
    for (size_t i = 0; i < indexes.size(); ++i) {
        SCOPED_TRACE(kMeanings[i].option);
        const ppd_option_t *option = ppdFindOption(ppd.get(), kMeanings[i].option);
        ASSERT_TRUE(option);
        const auto index = indexes[i].index[preset];
        ASSERT_LT(index, option->num_choices);
        EXPECT_STREQ(option->choices[index].choice, kMeanings[i].choice[preset]) << indexes[i].menu;
        ppdMarkOption(ppd.get(), kMeanings[i].option, option->choices[index].choice);
    }
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);

    // Economy selects the first choice of some menus. That choice must be the one that saves toner.
    ppdMarkOption(ppd.get(), "BVEconoMode", "True");
    for (const PresetRow *row : economyRows(static_cast<int16_t>(preset))) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), kMeanings[row - indexes.data()].option);
        EXPECT_STREQ(option->choices[0].choice, "Off") << row->menu;
        ppdMarkOption(ppd.get(), option->keyword, "Off");
    }
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
}

INSTANTIATE_TEST_SUITE_P(QuickColor, Presets, testing::Values(0, 1, 2),
                         [](const auto &info) { return std::string(kQuickColors[static_cast<size_t>(info.param)]); });

TEST(Defaults, AreTheGeneralPresetAndConflictWithNothing)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    for (const Meaning &row : kMeanings) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), row.option);
        ASSERT_TRUE(option) << row.option;
        EXPECT_STREQ(option->defchoice, row.choice[0]) << row.option;
    }
}

// Some rules look at the first choice of a menu. It must be the choice that makes other settings meaningless.
TEST(FirstChoices, AreTheOnesThatMakeOthersMeaningless)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    // clang-format off
    const std::pair<const char *, const char *> expected[] = {
        {"BVImageRGBSource", "None"}, {"BVTextRGBSource", "None"}, {"BVGraphicsRGBSource", "None"},
        {"BVSimSource", "None"}, {"BVImageDestinationProfile", "Auto"}, {"BVTextDestinationProfile", "Auto"},
        {"BVEdgeType", "Off"}, {"BVGraphicsDestinationProfile", "Auto"},
    };
    // clang-format on
    for (const auto &[keyword, first] : expected) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), keyword);
        ASSERT_TRUE(option) << keyword;
        EXPECT_STREQ(option->choices[0].choice, first) << keyword;
    }
    for (const char *object : {"Image", "Text", "Graphics"}) {
        const std::string prefix = std::string("BV") + object;
        EXPECT_EQ(ppdFindOption(ppd.get(), (prefix + "RenderIntent").c_str())->num_choices, 4) << object;
        EXPECT_GE(ppdFindOption(ppd.get(), (prefix + "Halftone").c_str())->num_choices, 3) << object;
    }
}

// A constraint must work from both sides, and a choice without conflict must exist.
TEST(Constraints, WorkFromBothSides)
{
    const struct
    {
        const char *option, *choice, *other, *otherChoice;
    } pairs[] = {
        {"BVColorAsGray", "True", "BVColorSeparation", "True"},
        {"BVEconoMode", "True", "Resolution", "1200dpi"},
        {"BVTextHalftone", "ErrorDiffusion", "Resolution", "1200dpi"},
        {"MediaType", "Labels", "Duplex", "DuplexNoTumble"},
    };
    for (const auto &pair : pairs) {
        SCOPED_TRACE(pair.option);
        const Ppd ppd = openPpd();
        ASSERT_TRUE(ppd);
        ppdMarkOption(ppd.get(), pair.option, pair.choice);
        EXPECT_GT(ppdMarkOption(ppd.get(), pair.other, pair.otherChoice), 0);
        EXPECT_TRUE(ppdFindOption(ppd.get(), pair.option)->conflicted);
        EXPECT_TRUE(ppdFindOption(ppd.get(), pair.other)->conflicted);
        EXPECT_EQ(ppdMarkOption(ppd.get(), pair.option, ppdFindOption(ppd.get(), pair.option)->defchoice), 0);
    }
}

} // namespace
