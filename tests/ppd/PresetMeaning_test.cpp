// What the printer's PPD must offer so that Quick Color, which picks choices by position, means what its names say.
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

struct Position
{
    int index;
    const char *choice;
};

struct PresetRow
{
    const char *option;
    std::array<Position, 3> preset; // General, Photo, Presentation
    bool economyClears[3];          // Economy takes it back to the first choice
};

constexpr std::array<const char *, 3> kQuickColors = {"General", "Photo", "Presentation"};

// General: photos as a camera sees them, text and charts vivid and crisp, gray from black toner alone.
// Photo: everything as an image: perceptual, gray from all four toners, smooth screens, no sharpened edges.
// Presentation: everything as a slide: vivid colors, gray from black toner alone, fine screens, sharpened edges.
// clang-format off
constexpr PresetRow kPresets[] = {
    {"BVImageRGBSource",             {{{1, "sRGB"},                 {1, "sRGB"},                 {1, "sRGB"}}},                 {}},
    {"BVImageRenderIntent",          {{{0, "Perceptual"},           {0, "Perceptual"},           {1, "Saturation"}}},           {}},
    {"BVImageGrayTreatment",         {{{1, "BlackOnly"},            {0, "FourColor"},            {1, "BlackOnly"}}},            {}},
    {"BVImageDestinationProfile",    {{{0, "Auto"},                 {0, "Auto"},                 {0, "Auto"}}},                 {}},
    {"BVImageHalftone",              {{{1, "Gradation"},            {1, "Gradation"},            {2, "Detail"}}},               {}},
    {"BVImageEdgeEnhance",           {{{0, "Off"},                  {0, "Off"},                  {1, "On"}}},                   {false, false, true}},
    {"BVTextRGBSource",              {{{1, "sRGB"},                 {1, "sRGB"},                 {1, "sRGB"}}},                 {}},
    {"BVTextRenderIntent",           {{{1, "Saturation"},           {0, "Perceptual"},           {1, "Saturation"}}},           {}},
    {"BVTextGrayTreatment",          {{{1, "BlackOnly"},            {0, "FourColor"},            {1, "BlackOnly"}}},            {}},
    {"BVTextDestinationProfile",     {{{0, "Auto"},                 {0, "Auto"},                 {0, "Auto"}}},                 {}},
    {"BVTextHalftone",               {{{2, "Detail"},               {1, "Gradation"},            {2, "Detail"}}},               {}},
    {"BVTextEdgeEnhance",            {{{1, "On"},                   {0, "Off"},                  {1, "On"}}},                   {}},
    {"BVGraphicsRGBSource",          {{{1, "sRGB"},                 {1, "sRGB"},                 {1, "sRGB"}}},                 {}},
    {"BVGraphicsRenderIntent",       {{{1, "Saturation"},           {0, "Perceptual"},           {1, "Saturation"}}},           {}},
    {"BVGraphicsGrayTreatment",      {{{1, "BlackOnly"},            {0, "FourColor"},            {1, "BlackOnly"}}},            {}},
    {"BVGraphicsDestinationProfile", {{{0, "Auto"},                 {0, "Auto"},                 {0, "Auto"}}},                 {}},
    {"BVGraphicsHalftone",           {{{1, "Gradation"},            {1, "Gradation"},            {2, "Detail"}}},               {}},
    {"BVGraphicsEdgeEnhance",        {{{1, "On"},                   {0, "Off"},                  {1, "On"}}},                   {true, false, true}},
    {"BVSimSource",                  {{{0, "None"},                 {0, "None"},                 {0, "None"}}},                 {}},
    {"BVSimRenderIntent",            {{{0, "RelativeColorimetric"}, {0, "RelativeColorimetric"}, {0, "RelativeColorimetric"}}}, {}},
    {"BVSimGrayTreatment",           {{{0, "AsSpecified"},          {0, "AsSpecified"},          {0, "AsSpecified"}}},          {}},
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

    for (const bool economy : {false, true}) {
        ppdMarkOption(ppd.get(), "BVQuickColor", kQuickColors[preset]);
        ppdMarkOption(ppd.get(), "BVEconoMode", economy ? "True" : "False");
        for (const PresetRow &row : kPresets) {
            SCOPED_TRACE(row.option);
            const ppd_option_t *option = ppdFindOption(ppd.get(), row.option);
            ASSERT_TRUE(option);
            const auto [index, expected] = row.preset[preset];
            ASSERT_LT(index, option->num_choices);
            EXPECT_STREQ(option->choices[index].choice, expected);
            const int inForce = economy && row.economyClears[preset] ? 0 : index;
            if (inForce != index) {
                EXPECT_STREQ(option->choices[0].choice, "Off");
            }
            ppdMarkOption(ppd.get(), row.option, option->choices[inForce].choice);
        }
        EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(QuickColor, Presets, testing::Values(0, 1, 2),
                         [](const auto &info) { return std::string(kQuickColors[static_cast<size_t>(info.param)]); });

TEST(Defaults, AreTheGeneralPresetAndConflictWithNothing)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    for (const PresetRow &row : kPresets) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), row.option);
        ASSERT_TRUE(option) << row.option;
        EXPECT_STREQ(option->defchoice, row.preset[0].choice) << row.option;
    }
}

// Greying out goes by position as well: a first choice that switches something off must be the one that does.
TEST(FirstChoices, AreTheOnesThatMakeOthersMeaningless)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    const struct
    {
        const char *option, *first;
    } expected[] = {
        {"BVImageRGBSource", "None"},
        {"BVTextRGBSource", "None"},
        {"BVGraphicsRGBSource", "None"},
        {"BVSimSource", "None"},
        {"BVImageDestinationProfile", "Auto"},
        {"BVTextDestinationProfile", "Auto"},
        {"BVEdgeType", "Off"},
        {"BVGraphicsDestinationProfile", "Auto"},
    };
    for (const auto &row : expected) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), row.option);
        ASSERT_TRUE(option) << row.option;
        EXPECT_STREQ(option->choices[0].choice, row.first) << row.option;
    }
    for (const char *object : {"Image", "Text", "Graphics"}) {
        const std::string prefix = std::string("BV") + object;
        EXPECT_EQ(ppdFindOption(ppd.get(), (prefix + "RenderIntent").c_str())->num_choices, 4) << object;
        EXPECT_GE(ppdFindOption(ppd.get(), (prefix + "Halftone").c_str())->num_choices, 3) << object;
    }
}

TEST(CheckBoxes, AreBooleansWithBothChoicesAndWordsForThem)
{
    const Ppd ppd = openPpd();
    ASSERT_TRUE(ppd);
    for (const char *keyword : {"BVColorAsGray", "BVColorSeparation", "BVEconoMode", "BVAutoTrapping"}) {
        SCOPED_TRACE(keyword);
        const ppd_option_t *option = ppdFindOption(ppd.get(), keyword);
        ASSERT_TRUE(option);
        EXPECT_EQ(option->ui, PPD_UI_BOOLEAN);
        ASSERT_EQ(option->num_choices, 2);
        EXPECT_STREQ(ppdFindChoice(const_cast<ppd_option_t *>(option), "True")->text, "On");
        EXPECT_STREQ(ppdFindChoice(const_cast<ppd_option_t *>(option), "False")->text, "Off");
    }
}

// A choice that rules out another says so from both sides, and the way out is a choice that exists.
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
