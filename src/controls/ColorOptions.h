// SPDX-License-Identifier: GPL-2.0-or-later
// ColorOptions: the pane that opens first, with Quick Color, Brightness and the other everyday choices.
#pragma once

#include "platform/ClassNames.h"

#include "controls/ControlTableView.h"

class ColorOptions : public ControlTableView
{
    Q_OBJECT

public:
    explicit ColorOptions(QWidget *parent = nullptr);

    // Appends the keyword of every row, empty ones included.
    void createPPDKeyNSArray(QStringList *array) const;
    // Index of the selected Quick Color as a 16-bit number. -1: none is selected; 3: the free choice.
    int32_t getQuickColorValue() const;
    // State of the Economy check box: 0 or 1.
    int32_t getEconoModeValue() const;
};
