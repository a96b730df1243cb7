// The named ways in which the simulated printer can fail.
#pragma once

#include "simulator/ProfileTable.h"

#include <string_view>

namespace sim {

// Where a fault works, when it is not in the table's cells.
enum class Misbehaviour {
    None,
    Silent,       // no request is answered
    Slow,         // each answer comes late
    GeneralError, // the cell behind the middle one is an error
    SameAgain,    // behind the middle cell comes that cell again
    Decreasing,   // behind the middle cell comes the one before it
    Cycle,        // behind the last cell comes the first
    NoVariables,  // behind the middle cell comes an answer without any variable
    Endless,      // behind the last row of column 1 comes always another
    Dies,         // the program ends at the middle cell
};

struct Fault
{
    const char *name;
    const char *description;
    Misbehaviour misbehaviour;
    void (*alter)(Cells *); // changes the cells; null: leaves them
};

// All faults, in the order of the help text.
std::span<const Fault> faults();
// The fault of a name, or null.
const Fault *findFault(std::string_view name);

// What a GETNEXT for a name brings.
struct Step
{
    enum Kind { Found, End, Error, Empty, Die } kind = End;
    Cell cell; // for Found
};
Step nextStep(const Cells &cells, Misbehaviour misbehaviour, std::span<const oid> name);

} // namespace sim
