// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a full list file (3 x 500 records). The yardsticks are a bare parse of the same text and Python's plistlib.
// Prints medians in microseconds and ratios. The three take turns, so the machine's load affects all alike.
#include "platform/FileContents.h"
#include "platform/PropertyList.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileOperations.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <expat.h>
#include <string>
#include <vector>

namespace {

constexpr int kRounds = 41;

template <typename Work> double microseconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// One timed read in Python, in microseconds, without the start of the interpreter.
double pythonRead(const std::string &path)
{
    const std::string command = "python3 -c 'import plistlib,time,sys\n"
                                "t=[]\n"
                                "for i in range(5):\n"
                                "  s=time.perf_counter()\n"
                                "  with open(sys.argv[1],\"rb\") as f: plistlib.load(f)\n"
                                "  t.append(time.perf_counter()-s)\n"
                                "print(sorted(t)[2]*1e6)' '" +
                                path + "'";
    double result = 0;
    if (std::FILE *pipe = popen(command.c_str(), "r")) {
        if (std::fscanf(pipe, "%lf", &result) != 1)
            result = 0;
        pclose(pipe);
    }
    return result;
}

} // namespace

int main()
{
    const bvtest::TestRoot root;
    const auto lists = bvtest::makeLists();
    for (ProfileList *list : {&lists->rgb, &lists->sim, &lists->dst})
        bvtest::fill(*list);
    bvtest::TestRoot::writeList(bv::profileListXml(lists->rgb, lists->sim, lists->dst).value());
    const std::string path = bvtest::TestRoot::listFile();

    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> python;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(microseconds([&] { BVPListReadProfile_All(&lists->rgb, &lists->sim, &lists->dst); }));
        bare.push_back(microseconds([&] {
            const std::string text = bv::fileContents(path, bv::kPlistMaximumBytes).value();
            const XML_Parser parser = XML_ParserCreate(nullptr);
            XML_Parse(parser, text.data(), static_cast<int>(text.size()), XML_TRUE);
            XML_ParserFree(parser);
        }));
        if (round % 8 == 0)
            python.push_back(pythonRead(path));
    }
    std::printf("full list read: %.0f us; bare parse %.0f us, ratio %.2f; plistlib %.0f us, ratio %.2f\n", median(ours),
                median(bare), median(ours) / median(bare), median(python), median(ours) / median(python));
    return 0;
}
