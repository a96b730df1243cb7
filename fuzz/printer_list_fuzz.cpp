// SPDX-License-Identifier: GPL-2.0-or-later
// Reads any bytes as the simulated printer's list. The result must be sorted rows, or a sentence about the wrong line.
#include "simulator/ProfileFile.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const sim::ProfileFile file = sim::parseProfiles({reinterpret_cast<const char *>(data), size});
    if (!file.error.empty() && !file.rows.empty())
        std::abort();
    for (size_t i = 1; i < file.rows.size(); ++i) {
        if (file.rows[i].number <= file.rows[i - 1].number)
            std::abort();
    }
    return 0;
}
