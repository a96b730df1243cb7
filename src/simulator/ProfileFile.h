// The readable list of profiles that the simulated printer serves: one row of the table a line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// One row of the printer's table; a field without a value is a cell that the table lacks.
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
    std::string error;            // a sentence with the line's number; empty when the text was read
};

// Reads the text of a list. Its form is described in README.md.
ProfileFile parseProfiles(std::string_view text);

// Reads a list from a file; one that cannot be read is an error too.
ProfileFile readProfiles(const std::string &path);

// The list of a printer for which no file was given.
std::vector<ProfileRow> defaultProfiles();

} // namespace sim
