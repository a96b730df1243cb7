// SPDX-License-Identifier: GPL-2.0-or-later
// The preset table and its Economy overrides.
#include "profiles/QuickColorPresets.h"

namespace {

// clang-format off
constexpr std::array<PresetRow, 21> kPresets{{
    // option                         menu                        summary name           profile kind  Quick Color 0  1  2
    {"BVImageRGBSource",             "menu_iRGBSource",          "Image RGB Source",             1, {1, 1, 1}},
    {"BVImageRenderIntent",          "menu_iRGBIntent",          "Image RGB Intent",             0, {0, 0, 1}},
    {"BVImageGrayTreatment",         "menu_iRGBGrayTreatment",   "Image RGB Gray Treatment",     0, {1, 0, 1}},
    {"BVImageDestinationProfile",    "menu_iDestinationProfile", "Image Destination Profile",    2, {0, 0, 0}},
    {"BVImageHalftone",              "menu_iHalftone",           "Image Halftone",               0, {1, 1, 2}},
    {"BVImageEdgeEnhance",           "menu_iEdgeEnhancement",    "Image EdgeEnhance",            0, {0, 0, 1}},
    {"BVTextRGBSource",              "menu_tRGBSource",          "Text RGB Source",              1, {1, 1, 1}},
    {"BVTextRenderIntent",           "menu_tRGBIntent",          "Text RGB Intent",              0, {1, 0, 1}},
    {"BVTextGrayTreatment",          "menu_tRGBGrayTreatment",   "Text RGB Gray Treatment",      0, {1, 0, 1}},
    {"BVTextDestinationProfile",     "menu_tDestinationProfile", "Text Destination Profile",     2, {0, 0, 0}},
    {"BVTextHalftone",               "menu_tHalftone",           "Text Halftone",                0, {2, 1, 2}},
    {"BVTextEdgeEnhance",            "menu_tEdgeEnhancement",    "Text EdgeEnhance",             0, {1, 0, 1}},
    {"BVGraphicsRGBSource",          "menu_gRGBSource",          "Graphics RGB Source",          1, {1, 1, 1}},
    {"BVGraphicsRenderIntent",       "menu_gRGBIntent",          "Graphics RGB Intent",          0, {1, 0, 1}},
    {"BVGraphicsGrayTreatment",      "menu_gRGBGrayTreatment",   "Graphics RGB Gray Treatment",  0, {1, 0, 1}},
    {"BVGraphicsDestinationProfile", "menu_gDestinationProfile", "Graphics Destination Profile", 2, {0, 0, 0}},
    {"BVGraphicsHalftone",           "menu_gHalftone",           "Graphics Halftone",            0, {1, 1, 2}},
    {"BVGraphicsEdgeEnhance",        "menu_gEdgeEnhancement",    "Graphics EdgeEnhance",         0, {1, 0, 1}},
    {"BVSimSource",                  "menu_sSimulationProfile",  "Simulation Profile",           3, {0, 0, 0}},
    {"BVSimRenderIntent",            "menu_sMatchPaperColor",    "Match Paper Color",            0, {0, 0, 0}},
    {"BVSimGrayTreatment",           "menu_sCMYKGrayTreatment",  "CMYK Gray Treatment",          0, {0, 0, 0}},
}};

// With Economy Print, the menus in which each Quick Color selects the first choice.
constexpr const PresetRow *kImageEdge = &kPresets[5];
constexpr const PresetRow *kGraphicsEdge = &kPresets[17];
constexpr std::array<const PresetRow *, 1> kEconomy0{kGraphicsEdge};
constexpr std::array<const PresetRow *, 2> kEconomy2{kImageEdge, kGraphicsEdge};
// clang-format on

} // namespace

std::span<const PresetRow> quickColorPresets()
{
    return kPresets;
}

std::span<const PresetRow *const> economyRows(int16_t quickColor)
{
    switch (quickColor) {
    case 0:
        return kEconomy0;
    case 2:
        return kEconomy2;
    default:
        return {};
    }
}
