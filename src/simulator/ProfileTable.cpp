// SPDX-License-Identifier: GPL-2.0-or-later
// Builds and searches the cells of the profile table.
#include "simulator/ProfileTable.h"

#include <algorithm>

namespace sim {

namespace {

constexpr oid kPrinterRoot[] = {1, 3, 6, 1, 4, 1, 39847, 1, 1, 1, 1, 6};
constexpr oid kEntryBelowRoot[] = {13, 1, 1};

bool before(std::span<const oid> left, std::span<const oid> right)
{
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end());
}

void add(Cells *cells, oid column, oid row, std::optional<int32_t> number)
{
    if (number)
        cells->push_back({cellName(column, row), ASN_INTEGER, *number, {}});
}

void add(Cells *cells, oid column, oid row, const std::optional<std::string> &text)
{
    if (text)
        cells->push_back({cellName(column, row), ASN_OCTET_STR, 0, *text});
}

} // namespace

std::span<const oid> printerRoot()
{
    return kPrinterRoot;
}

Identifier cellName(oid column, oid row)
{
    Identifier name(std::begin(kPrinterRoot), std::end(kPrinterRoot));
    name.insert(name.end(), std::begin(kEntryBelowRoot), std::end(kEntryBelowRoot));
    name.insert(name.end(), {column, 1, row});
    return name;
}

Cells cellsOf(std::span<const ProfileRow> rows)
{
    Cells cells;
    for (const ProfileRow &row : rows) {
        add(&cells, kColumnIndex, row.number, row.indexOnDevice);
        add(&cells, kColumnLocation, row.number, row.location);
        add(&cells, kColumnProfileName, row.number, row.profileName);
        add(&cells, kColumnFileName, row.number, row.fileName);
        add(&cells, kColumnClass, row.number, row.profileClass);
        add(&cells, kColumnReserved, row.number, 0);
        add(&cells, kColumnAvailability, row.number, row.availability);
    }
    sortCells(&cells);
    return cells;
}

void sortCells(Cells *cells)
{
    std::sort(cells->begin(), cells->end(),
              [](const Cell &left, const Cell &right) { return before(left.name, right.name); });
}

const Cell *findCell(const Cells &cells, std::span<const oid> name)
{
    const auto found =
        std::lower_bound(cells.begin(), cells.end(), name,
                         [](const Cell &cell, std::span<const oid> key) { return before(cell.name, key); });
    return found != cells.end() && std::equal(found->name.begin(), found->name.end(), name.begin(), name.end())
               ? &*found
               : nullptr;
}

const Cell *nextCell(const Cells &cells, std::span<const oid> name)
{
    const auto found =
        std::upper_bound(cells.begin(), cells.end(), name,
                         [](std::span<const oid> key, const Cell &cell) { return before(key, cell.name); });
    return found != cells.end() ? &*found : nullptr;
}

} // namespace sim
