// SPDX-License-Identifier: GPL-2.0-or-later
// The printer's profile table as SNMP cells, sorted by identifier.
#pragma once

#include "simulator/ProfileFile.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

namespace sim {

using Identifier = std::vector<oid>;

struct Cell
{
    Identifier name;
    u_char type = ASN_INTEGER; // ASN_INTEGER or ASN_OCTET_STR
    long number = 0;
    std::string text;
};
using Cells = std::vector<Cell>;

enum Column : oid {
    kColumnIndex = 1,
    kColumnLocation = 2,
    kColumnProfileName = 3,
    kColumnFileName = 4,
    kColumnClass = 5,
    kColumnReserved = 6,
    kColumnAvailability = 7,
};

// The prefix of all identifiers that the printer serves.
std::span<const oid> printerRoot();

// Identifier of a cell: table entry, column, first index (always 1), row number.
Identifier cellName(oid column, oid row);

// The sorted cells of these rows.
Cells cellsOf(std::span<const ProfileRow> rows);

void sortCells(Cells *cells);

// The cell with exactly this name, or null.
const Cell *findCell(const Cells &cells, std::span<const oid> name);
// The first cell after a name, or null.
const Cell *nextCell(const Cells &cells, std::span<const oid> name);

} // namespace sim
