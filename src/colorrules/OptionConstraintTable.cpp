// SPDX-License-Identifier: GPL-2.0-or-later
// The rule table. Only the rules 1 and 2 change a value; the others keep it, so that users find their choice again when
// the control is available again. Rule 19 uses the two-condition expression but has a single condition: Economy must
// not grey out text edge enhancement, because its users rely on crisp text.
#include "colorrules/OptionConstraints.h"

namespace {

// clang-format off
constexpr CSTCondition kClosing{"", -1, kCSTEnd}; // end of each condition array; never evaluated

constexpr CSTCondition kQuickColorNotFree[]  = {{"QuickColorPopup", 4, kCSTNotEqual}, kClosing};
constexpr CSTCondition kGray[]               = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kSeparation[]         = {{"ColorSeparationCheckBox", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kGrayImageSource[]    = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"ImageRGBSourcePopup", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kGrayImageDest[]      = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"ImageDestinationProfilePopup", 1, kCSTNotEqual}, kClosing};
constexpr CSTCondition kGrayTextSource[]     = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"TextRGBSourcePopup", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kGrayTextDest[]       = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"TextDestinationProfilePopup", 1, kCSTNotEqual}, kClosing};
constexpr CSTCondition kGrayGraphicsSource[] = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"GraphicsRGBSourcePopup", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kGrayGraphicsDest[]   = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"GraphicsDestinationProfilePopup", 1, kCSTNotEqual}, kClosing};
constexpr CSTCondition kGraySimulation[]     = {{"ColorAsGrayCheckBox", 1, kCSTEqual}, {"SimulationSourcePopup", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kEconomyEdge[]        = {{"EconoModeCheckBox", 1, kCSTEqual}, {"EdgeTypePopup", 1, kCSTEqual}, kClosing};
constexpr CSTCondition kEdge[]               = {{"EdgeTypePopup", 1, kCSTEqual}, kClosing};

constexpr int32_t kFirst[]  = {kCSTEnd};
constexpr int32_t kEither[] = {0, 1, kCSTOr, kCSTEnd};

constexpr CSTAction kGreyOut[] = {{GROUT, 0}};

} // namespace

const CSTRule cstColorOption[] = {
    // type        conditions              expr.    target                           value  value action  actions
    {VRCHG,        1, kQuickColorNotFree,  kFirst,  "GoToAdvancedOptionsButton",        -1,  kCSTEnd,      1, kGreyOut}, // 0
    {VRCHG,        1, kGray,               kFirst,  "ColorSeparationCheckBox",           0,  kCSTSet,      1, kGreyOut}, // 1
    {VRCHG,        1, kSeparation,         kFirst,  "ColorAsGrayCheckBox",               0,  kCSTSet,      1, kGreyOut}, // 2
    {VRCHG,        1, kGray,               kFirst,  "ImageRGBSourcePopup",              -1,  kCSTEnd,      1, kGreyOut}, // 3
    {VRCHG,        2, kGrayImageSource,    kEither, "ImageRenderIntentPopup",           -1,  kCSTEnd,      1, kGreyOut}, // 4
    {VRCHG,        2, kGrayImageDest,      kEither, "ImageGrayTreatmentPopup",          -1,  kCSTEnd,      1, kGreyOut}, // 5
    {VRCHG,        1, kGray,               kFirst,  "ImageDestinationProfilePopup",     -1,  kCSTEnd,      1, kGreyOut}, // 6
    {VRCHG,        1, kGray,               kFirst,  "TextRGBSourcePopup",               -1,  kCSTEnd,      1, kGreyOut}, // 7
    {VRCHG,        2, kGrayTextSource,     kEither, "TextRenderIntentPopup",            -1,  kCSTEnd,      1, kGreyOut}, // 8
    {VRCHG,        2, kGrayTextDest,       kEither, "TextGrayTreatmentPopup",           -1,  kCSTEnd,      1, kGreyOut}, // 9
    {VRCHG,        1, kGray,               kFirst,  "TextDestinationProfilePopup",      -1,  kCSTEnd,      1, kGreyOut}, // 10
    {VRCHG,        1, kGray,               kFirst,  "GraphicsRGBSourcePopup",           -1,  kCSTEnd,      1, kGreyOut}, // 11
    {VRCHG,        2, kGrayGraphicsSource, kEither, "GraphicsRenderIntentPopup",        -1,  kCSTEnd,      1, kGreyOut}, // 12
    {VRCHG,        2, kGrayGraphicsDest,   kEither, "GraphicsGrayTreatmentPopup",       -1,  kCSTEnd,      1, kGreyOut}, // 13
    {VRCHG,        1, kGray,               kFirst,  "GraphicsDestinationProfilePopup",  -1,  kCSTEnd,      1, kGreyOut}, // 14
    {VRCHG,        1, kGray,               kFirst,  "SimulationSourcePopup",            -1,  kCSTEnd,      1, kGreyOut}, // 15
    {VRCHG,        2, kGraySimulation,     kEither, "SimulationRenderIntentPopup",      -1,  kCSTEnd,      1, kGreyOut}, // 16
    {VRCHG,        2, kGraySimulation,     kEither, "SimulationGrayTreatmentPopup",     -1,  kCSTEnd,      1, kGreyOut}, // 17
    {VRCHG,        2, kEconomyEdge,        kEither, "ImageEdgeEnhancePopup",            -1,  kCSTEnd,      1, kGreyOut}, // 18
    {VRCHG,        1, kEdge,               kEither, "TextEdgeEnhancePopup",              0,  kCSTEnd,      1, kGreyOut}, // 19
    {VRCHG,        2, kEconomyEdge,        kEither, "GraphicsEdgeEnhancePopup",         -1,  kCSTEnd,      1, kGreyOut}, // 20
    {kCSTTableEnd, 0, nullptr,             kFirst,  "",                                 -1,  kCSTEnd,      0, nullptr},  // 21
};
// clang-format on
