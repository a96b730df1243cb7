// SPDX-License-Identifier: GPL-2.0-or-later
// The seven states that a stored profile's InMenu can have, and what follows from them. Free of Qt and libcups.
#pragma once

#include <cstdint>

namespace bv {

// A profile is either known from the printer or the user's own entry, and it is in the profile menus or not. One that
// is known from the printer was, or was not, on the printer at the latest walk. The list file stores these numbers. A
// record holds a plain number, because a file may contain any number.
// clang-format off
enum MenuState : int32_t {
    kFreeSlot        = 0, // no profile; see also isListed
    kMissing         = 1, // known from the printer, not found there, not in the menus
    kOnPrinter       = 2, // found on the printer, not in the menus
    kMissingInMenu   = 3, // known from the printer, not found there, in the menus
    kOnPrinterInMenu = 4, // found on the printer, in the menus
    kOwn             = 5, // the user's entry, not in the menus
    kOwnInMenu       = 6, // the user's entry, in the menus
};
// clang-format on

// Whether the slot holds a profile.
constexpr bool isUsed(int32_t state)
{
    return state != kFreeSlot;
}

// Whether the profile is known from the printer. It may no longer be there.
constexpr bool isFromPrinter(int32_t state)
{
    return state >= kMissing && state <= kOnPrinterInMenu;
}

// Whether the latest walk found the profile on the printer.
constexpr bool isOnPrinter(int32_t state)
{
    return state == kOnPrinter || state == kOnPrinterInMenu;
}

// Whether the profile is in the profile menus. It is then checked in the management window, and has the number that a
// ticket refers to.
constexpr bool isInMenu(int32_t state)
{
    return state == kMissingInMenu || state == kOnPrinterInMenu || state == kOwnInMenu;
}

// Whether the menus show a record that the list's count covers. State 0 and unknown numbers are shown too, although no
// ticket can refer to such a record. This is intended: older lists have no states, and their users rely on seeing their
// profiles.
constexpr bool isListed(int32_t state)
{
    return state != kMissing && state != kOnPrinter && state != kOwn;
}

// The state after the user adds the profile to the menus or removes it from them. 0 and unknown numbers stay as they
// are.
constexpr int32_t flippedInMenu(int32_t state)
{
    constexpr int32_t kOther[] = {kFreeSlot, kMissingInMenu, kOnPrinterInMenu, kMissing, kOnPrinter, kOwnInMenu, kOwn};
    return state >= kFreeSlot && state <= kOwnInMenu ? kOther[state] : state;
}

} // namespace bv
