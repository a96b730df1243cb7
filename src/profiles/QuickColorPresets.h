// SPDX-License-Identifier: GPL-2.0-or-later
// The advanced settings that each Quick Color stands for, as positions of choices in the PPD. The dialog shows them and
// the filter applies them. Free of Qt and libcups.
#pragma once

#include <array>
#include <cstdint>
#include <span>

// Quick Color indexes. The last one leaves the advanced settings to the user.
inline constexpr int kPresetCount = 3;
inline constexpr int16_t kQuickColorFree = 3;

// One advanced setting.
struct PresetRow
{
    const char *option;      // PPD keyword
    const char *menu;        // name of its menu in the form
    const char *summaryName; // localization key of its name in the summary
    int16_t profileKind;     // as in its control record: 1 RGB source, 2 destination, 3 simulation; 0: no profiles
    std::array<int8_t, kPresetCount> index; // the choice that each preset selects, from 0
};

// The 21 settings in the order in which a preset is applied and shown in the summary.
std::span<const PresetRow> quickColorPresets();

// The rows that Economy Print sets to their first choice: the edge enhancements that the preset turns on, except that
// of text. Text is left out on purpose: users of Economy Print rely on crisp text. Empty for a Quick Color outside 0 to
// 2.
std::span<const PresetRow *const> economyRows(int16_t quickColor);
