// SPDX-License-Identifier: GPL-2.0-or-later
// The text file with the profiles of the simulated printer. Each line is one row of the table.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// One row of the printer's table. A field without a value means that the table lacks this cell.
struct ProfileRow
{
    uint32_t number = 0; // the row's number in the table, from 1
    std::optional<int32_t> indexOnDevice;
    std::optional<int32_t> location; // 4 disk, 5 card
    std::optional<std::string> fileName;
    std::optional<std::string> profileName;
    std::optional<int32_t> profileClass;
    std::optional<int32_t> availability;
};

struct ProfileFile
{
    std::vector<ProfileRow> rows; // by ascending number
    std::string error;            // a sentence with the line number; empty on success
};

// Parses the text of a list. README.md describes the format.
ProfileFile parseProfiles(std::string_view text);

// Reads a list from a file. A file that cannot be read gives an error too.
ProfileFile readProfiles(const std::string &path);

// The built-in list, used when no file is given.
std::vector<ProfileRow> defaultProfiles();

} // namespace sim
