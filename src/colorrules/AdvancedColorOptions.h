// AdvancedColorOptions: the pane with the settings for images, text and graphics and for the CMYK simulation.
#pragma once

#include "platform/ClassNames.h"

#include "controls/ControlTableView.h"

class AdvancedColorOptions : public ControlTableView
{
    Q_OBJECT

public:
    explicit AdvancedColorOptions(QWidget *parent = nullptr);

    // Builds the table, shows the image tab and enables "Management Profile" for who may manage profiles.
    void createPDEControlTable() override;
    // Titles and menus from the PPD, then the stored profiles behind them.
    void createPDEItemForPPDKey() override;
    // Builds the menus anew after the stored profiles changed, so that each profile stands once.
    void rebuildProfileItems();
    // Appends the keyword of every row, empty ones included.
    void createPPDKeyNSArrayAdvance(QStringList *array) const;

    // Selects the items of a Quick Color preset (0 to 2; other values change nothing), then, with eco non-zero, its
    // Economy items. A menu without the item stays as it is.
    void changeItemAccodingQuickColor(int16_t quickColor, int16_t eco);
    // Adds what the preset would select, whatever the menus show, then its Economy items. A menu without the item is
    // left out.
    void getSummaryItemAccodingQuickColor(int16_t quickColor, int16_t eco, bv::PrintDictionary *summaryDict,
                                          bv::PrintArray *addArray);

public slots:
    // Opens the download manager; silent when it is not installed.
    void downloadManagerButton();

private:
    void selectItem(const char *menu, int index);
    void summariseItem(const char *menu, const char *summaryName, int index, bv::PrintDictionary *summaryDict,
                       bv::PrintArray *addArray);
};
