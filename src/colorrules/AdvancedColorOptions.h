// SPDX-License-Identifier: GPL-2.0-or-later
// AdvancedColorOptions: the pane with the settings for images, text and graphics and for the CMYK simulation.
#pragma once

#include "platform/ClassNames.h"

#include "controls/ControlTableView.h"

class AdvancedColorOptions : public ControlTableView
{
    Q_OBJECT

public:
    explicit AdvancedColorOptions(QWidget *parent = nullptr);

    // Builds the table, shows the image tab, and enables "Management Profile" if the user may manage profiles.
    void createPDEControlTable() override;
    // Sets titles and menus from the PPD, then appends the stored profiles to the menus.
    void createPDEItemForPPDKey() override;
    // Rebuilds the menus after the stored profiles changed. Each profile appears once.
    void rebuildProfileItems();
    // Appends the keyword of every row, empty ones included.
    void createPPDKeyNSArrayAdvance(QStringList *array) const;

    // Selects the items of a Quick Color preset (0 to 2; other values change nothing). If eco is not 0, also selects
    // the preset's Economy items. A menu that lacks the item stays as it is.
    void changeItemAccodingQuickColor(int16_t quickColor, int16_t eco);
    // Adds the items that the preset would select to a summary, whatever the menus show now. If eco is not 0, adds its
    // Economy items after them. Skips a menu that lacks the item.
    void getSummaryItemAccodingQuickColor(int16_t quickColor, int16_t eco, bv::PrintDictionary *summaryDict,
                                          bv::PrintArray *addArray);

public slots:
    // Opens the download manager. Does nothing if it is not installed.
    void downloadManagerButton();

private:
    void selectItem(const char *menu, int index);
    void summariseItem(const char *menu, const char *summaryName, int index, bv::PrintDictionary *summaryDict,
                       bv::PrintArray *addArray);
};
