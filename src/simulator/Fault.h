// SPDX-License-Identifier: GPL-2.0-or-later
// The faults that the simulated printer can have.
#pragma once

#include "simulator/ProfileTable.h"

#include <string_view>

namespace sim {

// What a fault does apart from changing cells. The "middle" cell is the one after the first half of all cells.
enum class Misbehaviour {
    None,
    Silent,       // answers no request
    Slow,         // answers late
    GeneralError, // an error instead of the cell after the middle one
    SameAgain,    // the middle cell follows itself
    Decreasing,   // the cell before the middle one follows it
    Cycle,        // the first cell follows the last one
    NoVariables,  // an answer without variables instead of the cell after the middle one
    Endless,      // column 1 never ends
    Dies,         // the program exits at the middle cell
};

struct Fault
{
    const char *name;
    const char *description;
    Misbehaviour misbehaviour;
    void (*alter)(Cells *); // changes the cells; null when the fault changes none
};

// All faults, in the order of the help text.
std::span<const Fault> faults();
// The fault with this name, or null.
const Fault *findFault(std::string_view name);

// The answer to a GETNEXT for a name.
struct Step
{
    enum Kind { Found, End, Error, Empty, Die } kind = End;
    Cell cell; // for Found
};
Step nextStep(const Cells &cells, Misbehaviour misbehaviour, std::span<const oid> name);

} // namespace sim
