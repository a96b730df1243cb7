// The combinations of advanced settings that the Quick Color choices stand for, as menu indexes.
#pragma once

#include <array>
#include <cstdint>
#include <span>

// Quick Color indexes. The last one leaves the advanced settings to the user.
inline constexpr int kPresetCount = 3;
inline constexpr int16_t kQuickColorFree = 3;

// One advanced menu: its outlet, its name in the summary, and the item that each preset selects.
struct PresetRow
{
    const char *menu;
    const char *summaryName;
    std::array<int8_t, kPresetCount> index;
};

// The 21 menus in the order in which a preset is applied and summarised.
std::span<const PresetRow> quickColorPresets();

// The rows whose menus go to their first item when Economy is on: those of a preset that enhances edges, but never that
// of text, since users of Economy rely on crisp text. Empty for a Quick Color outside 0 to 2.
std::span<const PresetRow *const> economyRows(int16_t quickColor);
