// The combinations of advanced settings that the Quick Color choices stand for, as positions among a PPD's choices. The
// dialog shows them and the filter prints them. Free of Qt and libcups.
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
    const char *menu;        // the outlet of its menu
    const char *summaryName; // localisation key of its name in the summary
    int16_t profileKind;     // as in its control record: 1 RGB source, 2 destination, 3 simulation; 0: no profiles
    std::array<int8_t, kPresetCount> index; // the choice that each preset selects, from 0
};

// The 21 settings in the order in which a preset is applied and summarised.
std::span<const PresetRow> quickColorPresets();

// The rows that go to their first choice when Economy is on: those of a preset that enhances edges, but never that of
// text, since users of Economy rely on crisp text. Empty for a Quick Color outside 0 to 2.
std::span<const PresetRow *const> economyRows(int16_t quickColor);
