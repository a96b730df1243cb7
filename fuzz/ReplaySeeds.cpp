// SPDX-License-Identifier: GPL-2.0-or-later
// Replays the seeds of a fuzz target: every file in the folders that the command line names. A seed that breaks the
// target ends the program; its name is the last line.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    int seeds = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &seed : std::filesystem::directory_iterator(argv[i])) {
            std::printf("%s\n", seed.path().c_str());
            std::fflush(stdout);
            std::ifstream file(seed.path(), std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(text.data()), text.size());
            ++seeds;
        }
    }
    std::printf("%d seeds\n", seeds);
    return seeds > 0 ? 0 : 1;
}
