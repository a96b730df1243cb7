// SPDX-License-Identifier: GPL-2.0-or-later
// The table of faults, and how each changes the cells or the order of answers.
#include "simulator/Fault.h"

#include <algorithm>

namespace sim {

namespace {

std::vector<ProfileRow> plainRows(uint32_t count)
{
    std::vector<ProfileRow> rows;
    for (uint32_t number = 1; number <= count; ++number) {
        ProfileRow row;
        row.number = number;
        row.indexOnDevice = static_cast<int32_t>(number);
        row.location = number % 5 == 0 ? 5 : 4;
        row.fileName = "P" + std::to_string(number) + ".ICC";
        row.profileName = "Profile " + std::to_string(number);
        row.profileClass = static_cast<int32_t>(number % 3 + 1);
        row.availability = 1;
        rows.push_back(std::move(row));
    }
    return rows;
}

oid rowOf(const Cell &cell)
{
    return cell.name.back();
}

void removeAll(Cells *cells)
{
    cells->clear();
}

void fiveHundredRows(Cells *cells)
{
    *cells = cellsOf(plainRows(500));
}

// Removes every third row, and the file name of every fifth row.
void withGaps(Cells *cells)
{
    std::erase_if(*cells, [](const Cell &cell) {
        return rowOf(cell) % 3 == 0 || (rowOf(cell) % 5 == 0 && cell.name == cellName(kColumnFileName, rowOf(cell)));
    });
}

// In every second row, sends texts as numbers and numbers as texts.
void wrongTypes(Cells *cells)
{
    for (Cell &cell : *cells) {
        if (rowOf(cell) % 2 != 0)
            continue;
        cell.type = cell.type == ASN_INTEGER ? ASN_OCTET_STR : ASN_INTEGER;
        cell.text = "1";
        cell.number = 7;
    }
}

void rowsOutOfRange(Cells *cells)
{
    std::vector<ProfileRow> rows = plainRows(1);
    for (const uint32_t number : {0U, 501U, 502U, 65536U, 2147483647U, 4294967295U}) {
        rows.front().number = number;
        const Cells extra = cellsOf(rows);
        cells->insert(cells->end(), extra.begin(), extra.end());
    }
    sortCells(cells);
}

// Adds to every column one instance with one index and one with three.
void oddInstances(Cells *cells)
{
    Cells extra;
    for (const Cell &cell : *cells) {
        if (rowOf(cell) != 1)
            continue;
        Cell shorter = cell;
        shorter.name.pop_back();
        Cell longer = cell;
        longer.name.push_back(9);
        extra.push_back(std::move(shorter));
        extra.push_back(std::move(longer));
    }
    cells->insert(cells->end(), extra.begin(), extra.end());
    sortCells(cells);
}

void oddTexts(Cells *cells)
{
    const std::string texts[] = {
        std::string(32, 'A'),
        std::string(33, 'B'),
        std::string(200, 'C'),
        std::string("D\0E.ICC", 7),
        std::string("F\x01\x1b\n.IC"),
        "\xff\xfe.ICC",
        "",
        "G%s%n.ICC",
    };
    std::vector<ProfileRow> rows = plainRows(static_cast<uint32_t>(std::size(texts)));
    for (ProfileRow &row : rows) {
        row.fileName = texts[row.number - 1];
        row.profileName = texts[row.number - 1];
    }
    *cells = cellsOf(rows);
}

// Adds another object of the printer after the table.
void withNeighbour(Cells *cells)
{
    Identifier name(printerRoot().begin(), printerRoot().end());
    name.insert(name.end(), {14, 0});
    cells->push_back({std::move(name), ASN_OCTET_STR, 0, "QL70"});
}

// clang-format off
constexpr Fault kFaults[] = {
    // name                description                                                 misbehaviour                 cells
    {"silent",            "answers nothing",                                           Misbehaviour::Silent,        nullptr},
    {"slow",              "answers each request after 0.1 s",                          Misbehaviour::Slow,          nullptr},
    {"no-such-name",      "has no profile table: noSuchName at once",                  Misbehaviour::None,          removeAll},
    {"general-error",     "answers genErr in the middle of the table",                 Misbehaviour::GeneralError,  nullptr},
    {"same-again",        "brings the middle cell for ever",                           Misbehaviour::SameAgain,     nullptr},
    {"decreasing",        "steps back in the middle of the table",                     Misbehaviour::Decreasing,    nullptr},
    {"cycle",             "begins again behind the last cell",                         Misbehaviour::Cycle,         nullptr},
    {"no-variables",      "answers without a variable in the middle of the table",     Misbehaviour::NoVariables,   nullptr},
    {"endless",           "has always another row",                                    Misbehaviour::Endless,       nullptr},
    {"dies",              "ends in the middle of the table",                           Misbehaviour::Dies,          nullptr},
    {"wrong-types",       "has numbers for texts and texts for numbers in even rows",  Misbehaviour::None,          wrongTypes},
    {"rows-out-of-range", "has rows 0, 501 and beyond as well",                        Misbehaviour::None,          rowsOutOfRange},
    {"odd-instances",     "has instances of one and of three indexes as well",         Misbehaviour::None,          oddInstances},
    {"odd-texts",         "has long, empty, cut and broken names (a list of its own)", Misbehaviour::None,          oddTexts},
    {"rows-500",          "has 500 rows (a list of its own)",                          Misbehaviour::None,          fiveHundredRows},
    {"gaps",              "lacks every third row and every fifth file name",           Misbehaviour::None,          withGaps},
    {"neighbour",         "has another object behind the table",                       Misbehaviour::None,          withNeighbour},
};
// clang-format on

Step found(const Cell &cell)
{
    return {Step::Found, cell};
}

bool isNamed(const Cell &cell, std::span<const oid> name)
{
    return std::equal(cell.name.begin(), cell.name.end(), name.begin(), name.end());
}

// The answer after the middle cell, for faults that change it.
std::optional<Step> faultyStep(const Cells &cells, size_t middle, Misbehaviour misbehaviour)
{
    switch (misbehaviour) {
    case Misbehaviour::GeneralError:
        return Step{Step::Error, {}};
    case Misbehaviour::SameAgain:
        return found(cells[middle]);
    case Misbehaviour::Decreasing:
        return found(cells[middle > 0 ? middle - 1 : middle]);
    case Misbehaviour::NoVariables:
        return Step{Step::Empty, cells[middle]};
    case Misbehaviour::Dies:
        return Step{Step::Die, {}};
    default:
        return std::nullopt;
    }
}

// Makes column 1 endless: invents the cell of the next row where the table has none.
Step endlessStep(const Cell *next, std::span<const oid> name)
{
    const Identifier first = cellName(kColumnIndex, 1);
    const bool inColumn = name.size() == first.size() && std::equal(first.begin(), first.end() - 1, name.begin());
    if (!inColumn || (next && std::equal(first.begin(), first.end() - 1, next->name.begin())))
        return next ? found(*next) : Step{};
    const oid row = name.back() + 1;
    return {Step::Found, {cellName(kColumnIndex, row), ASN_INTEGER, static_cast<long>(row), {}}};
}

} // namespace

std::span<const Fault> faults()
{
    return kFaults;
}

const Fault *findFault(std::string_view name)
{
    const auto row =
        std::find_if(std::begin(kFaults), std::end(kFaults), [name](const Fault &fault) { return fault.name == name; });
    return row == std::end(kFaults) ? nullptr : row;
}

Step nextStep(const Cells &cells, Misbehaviour misbehaviour, std::span<const oid> name)
{
    const Cell *next = nextCell(cells, name);
    if (misbehaviour == Misbehaviour::Endless)
        return endlessStep(next, name);
    if (misbehaviour == Misbehaviour::Cycle && !next && !cells.empty())
        return found(cells.front());
    const size_t middle = cells.size() / 2;
    if (!cells.empty() && isNamed(cells[middle], name)) {
        if (const std::optional<Step> step = faultyStep(cells, middle, misbehaviour))
            return *step;
    }
    return next ? found(*next) : Step{};
}

} // namespace sim
