// SPDX-License-Identifier: GPL-2.0-or-later
// The seeds of the filter's fuzz target, including inputs that once broke the filter.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size); // ends the program at a failure

TEST(FilterSeeds, KeepWhatTheFuzzTargetRequires)
{
    size_t seeds = 0;
    for (const auto &seed : std::filesystem::directory_iterator(BV_SOURCE_DIR "/fuzz/seeds/filter")) {
        SCOPED_TRACE(seed.path());
        std::ifstream file(seed.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(text.data()), text.size()), 0);
        ++seeds;
    }
    EXPECT_GE(seeds, 10U);
}
