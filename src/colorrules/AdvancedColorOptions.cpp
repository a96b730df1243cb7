// SPDX-License-Identifier: GPL-2.0-or-later
// The Advanced Color Options pane's control table, menus, presets and buttons.
#include "colorrules/AdvancedColorOptions.h"

#include "platform/ApplicationLauncher.h"
#include "platform/Bundle.h"
#include "platform/PlainTip.h"
#include "profiles/ProfileOperations.h"
#include "profiles/QuickColorPresets.h"

#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>
#include <array>

namespace {

constexpr char kDownloadManager[] = "/Applications/Download Manager QL70/BREVANE Download Manager.app";

// The three Halftone rows have no identifier, because no rule may grey them out. "Match Paper Color" is a rendering
// intent; the title is the name that users know from the PPD.
// clang-format off
constexpr std::array<ControlRow, 46> kRows{{
    // outlet                      kind                ppdKey                          title                   summaryName                      identifier                         profileKind
    {"menu_iRGBSource",            kPDEControlPopUp,   "BVImageRGBSource",             "RGB Source:",          "Image RGB Source",              "ImageRGBSourcePopup",             1},
    {"menu_iRGBIntent",            kPDEControlPopUp,   "BVImageRenderIntent",          "RGB Intent:",          "Image RGB Intent",              "ImageRenderIntentPopup",          0},
    {"menu_iRGBGrayTreatment",     kPDEControlPopUp,   "BVImageGrayTreatment",         "RGB Gray Treatment:",  "Image RGB Gray Treatment",      "ImageGrayTreatmentPopup",         0},
    {"menu_iDestinationProfile",   kPDEControlPopUp,   "BVImageDestinationProfile",    "Destination Profile:", "Image Destination Profile",     "ImageDestinationProfilePopup",    2},
    {"menu_iHalftone",             kPDEControlPopUp,   "BVImageHalftone",              "Halftone:",            "Image Halftone",                "",                                0},
    {"menu_iEdgeEnhancement",      kPDEControlPopUp,   "BVImageEdgeEnhance",           "EdgeEnhance:",         "Image EdgeEnhance",             "ImageEdgeEnhancePopup",           0},
    {"menu_tRGBSource",            kPDEControlPopUp,   "BVTextRGBSource",              "RGB Source:",          "Text RGB Source",               "TextRGBSourcePopup",              1},
    {"menu_tRGBIntent",            kPDEControlPopUp,   "BVTextRenderIntent",           "RGB Intent:",          "Text RGB Intent",               "TextRenderIntentPopup",           0},
    {"menu_tRGBGrayTreatment",     kPDEControlPopUp,   "BVTextGrayTreatment",          "RGB Gray Treatment:",  "Text RGB Gray Treatment",       "TextGrayTreatmentPopup",          0},
    {"menu_tDestinationProfile",   kPDEControlPopUp,   "BVTextDestinationProfile",     "Destination Profile:", "Text Destination Profile",      "TextDestinationProfilePopup",     2},
    {"menu_tHalftone",             kPDEControlPopUp,   "BVTextHalftone",               "Halftone:",            "Text Halftone",                 "",                                0},
    {"menu_tEdgeEnhancement",      kPDEControlPopUp,   "BVTextEdgeEnhance",            "EdgeEnhance:",         "Text EdgeEnhance",              "TextEdgeEnhancePopup",            0},
    {"menu_gRGBSource",            kPDEControlPopUp,   "BVGraphicsRGBSource",          "RGB Source:",          "Graphics RGB Source",           "GraphicsRGBSourcePopup",          1},
    {"menu_gRGBIntent",            kPDEControlPopUp,   "BVGraphicsRenderIntent",       "RGB Intent:",          "Graphics RGB Intent",           "GraphicsRenderIntentPopup",       0},
    {"menu_gRGBGrayTreatment",     kPDEControlPopUp,   "BVGraphicsGrayTreatment",      "RGB Gray Treatment:",  "Graphics RGB Gray Treatment",   "GraphicsGrayTreatmentPopup",      0},
    {"menu_gDestinationProfile",   kPDEControlPopUp,   "BVGraphicsDestinationProfile", "Destination Profile:", "Graphics Destination Profile",  "GraphicsDestinationProfilePopup", 2},
    {"menu_gHalftone",             kPDEControlPopUp,   "BVGraphicsHalftone",           "Halftone:",            "Graphics Halftone",             "",                                0},
    {"menu_gEdgeEnhancement",      kPDEControlPopUp,   "BVGraphicsEdgeEnhance",        "EdgeEnhance:",         "Graphics EdgeEnhance",          "GraphicsEdgeEnhancePopup",        0},
    {"menu_sSimulationProfile",    kPDEControlPopUp,   "BVSimSource",                  "Simulation Profile:",  "Simulation Profile",            "SimulationSourcePopup",           3},
    {"menu_sMatchPaperColor",      kPDEControlPopUp,   "BVSimRenderIntent",            "Match Paper Color:",   "Match Paper Color",             "SimulationRenderIntentPopup",     0},
    {"menu_sCMYKGrayTreatment",    kPDEControlPopUp,   "BVSimGrayTreatment",           "CMYK Gray Treatment:", "CMYK Gray Treatment",           "SimulationGrayTreatmentPopup",    0},
    {"tab_SwitchVew",              kPDEControlTabView, "",                             "Image",                nullptr,                         "",                                0},
    {"text_iRGBSource",            kPDEControlText,    "",                             "RGB Source:",          nullptr,                         "",                                0},
    {"text_iRGBIntent",            kPDEControlText,    "",                             "RGB Intent:",          nullptr,                         "",                                0},
    {"text_iRGBGrayTreatment",     kPDEControlText,    "",                             "RGB Gray Treatment:",  nullptr,                         "",                                0},
    {"text_iDestinationProfile",   kPDEControlText,    "",                             "Destination Profile:", nullptr,                         "",                                0},
    {"text_iHalftone",             kPDEControlText,    "",                             "Halftone:",            nullptr,                         "",                                0},
    {"text_iEdgeEnhancement",      kPDEControlText,    "",                             "EdgeEnhance:",         nullptr,                         "",                                0},
    {"text_tRGBSource",            kPDEControlText,    "",                             "RGB Source:",          nullptr,                         "",                                0},
    {"text_tRGBIntent",            kPDEControlText,    "",                             "RGB Intent:",          nullptr,                         "",                                0},
    {"text_tRGBGrayTreatment",     kPDEControlText,    "",                             "RGB Gray Treatment:",  nullptr,                         "",                                0},
    {"text_tDestinationProfile",   kPDEControlText,    "",                             "Destination Profile:", nullptr,                         "",                                0},
    {"text_tHalftone",             kPDEControlText,    "",                             "Halftone:",            nullptr,                         "",                                0},
    {"text_tEdgeEnhancement",      kPDEControlText,    "",                             "EdgeEnhance:",         nullptr,                         "",                                0},
    {"text_gRGBSource",            kPDEControlText,    "",                             "RGB Source:",          nullptr,                         "",                                0},
    {"text_gRGBIntent",            kPDEControlText,    "",                             "RGB Intent:",          nullptr,                         "",                                0},
    {"text_gRGBGrayTreatment",     kPDEControlText,    "",                             "RGB Gray Treatment:",  nullptr,                         "",                                0},
    {"text_gDestinationProfile",   kPDEControlText,    "",                             "Destination Profile:", nullptr,                         "",                                0},
    {"text_gHalftone",             kPDEControlText,    "",                             "Halftone:",            nullptr,                         "",                                0},
    {"text_gEdgeEnhancement",      kPDEControlText,    "",                             "EdgeEnhance:",         nullptr,                         "",                                0},
    {"text_sSimulationProfile",    kPDEControlText,    "",                             "Simulation Profile:",  nullptr,                         "",                                0},
    {"text_sMatchPaperColor",      kPDEControlText,    "",                             "Match Paper Color:",   nullptr,                         "",                                0},
    {"text_sCMYKGrayTreatment",    kPDEControlText,    "",                             "CMYK Gray Treatment:", nullptr,                         "",                                0},
    {"button_ManageProfile",       kPDEControlButton,  "",                             "Management Profile",   nullptr,                         "",                                0},
    {"button_DownloadManager",     kPDEControlButton,  "",                             "Download Manager",     nullptr,                         "",                                0},
    {"button_HideAdvancedOptions", kPDEControlButton,  "",                             "Hide Advanced Options", nullptr,                        "",                                0},
}};
// clang-format on

bool isPreset(int16_t quickColor)
{
    return quickColor >= 0 && quickColor < kPresetCount;
}

} // namespace

AdvancedColorOptions::AdvancedColorOptions(QWidget *parent) : ControlTableView(kRows, parent) {}

void AdvancedColorOptions::createPDEControlTable()
{
    ControlTableView::createPDEControlTable();
    if (auto *tabs = outlet<QTabWidget>("tab_SwitchVew"))
        tabs->setCurrentIndex(0);
    if (auto *manage = outlet<QPushButton>("button_ManageProfile")) {
        const bool allowed = BVPListIsAdminProfile() != 0;
        const QString reason =
            allowed ? QString() : localizedString("Only administrators of the print system can manage profiles.");
        manage->setEnabled(allowed);
        bv::setPlainTip(manage, reason);
        manage->setAccessibleDescription(reason);
    }
}

void AdvancedColorOptions::createPDEItemForPPDKey()
{
    ControlTableView::createPDEItemForPPDKey();
    PDECommon::commonAddMenuFromProfilePlist(getControlData());
}

void AdvancedColorOptions::rebuildProfileItems()
{
    // The menu of an option that the PPD lacks is not rebuilt, so its profiles are removed here; otherwise they would
    // appear twice.
    const PDEControlTable table = getControlData();
    for (int16_t row = 0; table && table[row].control; ++row) {
        auto *menu = qobject_cast<QComboBox *>(table[row].control);
        if (menu && table[row].profileKind != 0 && !table[row].ppdChoices)
            menu->clear();
    }
    createPDEItemForPPDKey();
}

void AdvancedColorOptions::createPPDKeyNSArrayAdvance(QStringList *array) const
{
    appendAllKeys(array);
}

void AdvancedColorOptions::changeItemAccodingQuickColor(int16_t quickColor, int16_t eco)
{
    if (!isPreset(quickColor))
        return;
    for (const PresetRow &row : quickColorPresets())
        selectItem(row.menu, row.index[size_t(quickColor)]);
    if (eco == 0)
        return;
    for (const PresetRow *row : economyRows(quickColor))
        selectItem(row->menu, 0);
}

void AdvancedColorOptions::getSummaryItemAccodingQuickColor(int16_t quickColor, int16_t eco,
                                                            bv::PrintDictionary *summaryDict, bv::PrintArray *addArray)
{
    if (!isPreset(quickColor))
        return;
    for (const PresetRow &row : quickColorPresets())
        summariseItem(row.menu, row.summaryName, row.index[size_t(quickColor)], summaryDict, addArray);
    if (eco == 0)
        return;
    // Added a second time on purpose: readers of the summary use the last value of an item, and that is the one in
    // force.
    for (const PresetRow *row : economyRows(quickColor))
        summariseItem(row->menu, row->summaryName, 0, summaryDict, addArray);
}

void AdvancedColorOptions::downloadManagerButton()
{
    bv::openApplication(kDownloadManager);
}

void AdvancedColorOptions::selectItem(const char *menu, int index)
{
    auto *control = outlet<QComboBox>(menu);
    if (control && index < control->count())
        control->setCurrentIndex(index);
}

void AdvancedColorOptions::summariseItem(const char *menu, const char *summaryName, int index,
                                         bv::PrintDictionary *summaryDict, bv::PrintArray *addArray)
{
    const auto *control = outlet<QComboBox>(menu);
    if (control && index < control->count())
        PDECommon::commonGetSummaryTextQuickColor(summaryName, control->itemText(index), summaryDict, addArray);
}
