// The preset table and its Economy overrides.
#include "colorrules/QuickColorPresets.h"

namespace {

// clang-format off
constexpr std::array<PresetRow, 21> kPresets{{
    // menu                     summary name                    Quick Color 0  1  2
    {"menu_iRGBSource",          "Image RGB Source",                       {1, 1, 1}},
    {"menu_iRGBIntent",          "Image RGB Intent",                       {0, 0, 1}},
    {"menu_iRGBGrayTreatment",   "Image RGB Gray Treatment",               {1, 0, 1}},
    {"menu_iDestinationProfile", "Image Destination Profile",              {0, 0, 0}},
    {"menu_iHalftone",           "Image Halftone",                         {1, 1, 2}},
    {"menu_iEdgeEnhancement",    "Image EdgeEnhance",                      {0, 0, 1}},
    {"menu_tRGBSource",          "Text RGB Source",                        {1, 1, 1}},
    {"menu_tRGBIntent",          "Text RGB Intent",                        {1, 0, 1}},
    {"menu_tRGBGrayTreatment",   "Text RGB Gray Treatment",                {1, 0, 1}},
    {"menu_tDestinationProfile", "Text Destination Profile",               {0, 0, 0}},
    {"menu_tHalftone",           "Text Halftone",                          {2, 1, 2}},
    {"menu_tEdgeEnhancement",    "Text EdgeEnhance",                       {1, 0, 1}},
    {"menu_gRGBSource",          "Graphics RGB Source",                    {1, 1, 1}},
    {"menu_gRGBIntent",          "Graphics RGB Intent",                    {1, 0, 1}},
    {"menu_gRGBGrayTreatment",   "Graphics RGB Gray Treatment",            {1, 0, 1}},
    {"menu_gDestinationProfile", "Graphics Destination Profile",           {0, 0, 0}},
    {"menu_gHalftone",           "Graphics Halftone",                      {1, 1, 2}},
    {"menu_gEdgeEnhancement",    "Graphics EdgeEnhance",                   {1, 0, 1}},
    {"menu_sSimulationProfile",  "Simulation Profile",                     {0, 0, 0}},
    {"menu_sMatchPaperColor",    "Match Paper Color",                      {0, 0, 0}},
    {"menu_sCMYKGrayTreatment",  "CMYK Gray Treatment",                    {0, 0, 0}},
}};

// Economy on: afterwards the first item in these menus, by Quick Color.
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
