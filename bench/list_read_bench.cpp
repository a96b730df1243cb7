// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a full list file (3 x 500 records). The yardsticks are a bare parse of the same text and Python's plistlib.
// Prints medians of the CPU time in microseconds and of the ratios of one round. The three take turns, so the machine's
// load affects all alike.
#include "platform/FileContents.h"
#include "platform/PropertyList.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileOperations.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <expat.h>
#include <string>
#include <vector>

namespace {

constexpr int kRounds = 41;

double processorMicroseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

template <typename Work> double microseconds(Work work)
{
    const double start = processorMicroseconds();
    work();
    return processorMicroseconds() - start;
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
                                "  s=time.process_time()\n"
                                "  with open(sys.argv[1],\"rb\") as f: plistlib.load(f)\n"
                                "  t.append(time.process_time()-s)\n"
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
    std::vector<double> ratios;
    std::vector<double> python;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(microseconds([&] { BVPListReadProfile_All(&lists->rgb, &lists->sim, &lists->dst); }));
        bare.push_back(microseconds([&] {
            const std::string text = bv::fileContents(path, bv::kPlistMaximumBytes).value();
            const XML_Parser parser = XML_ParserCreate(nullptr);
            XML_Parse(parser, text.data(), static_cast<int>(text.size()), XML_TRUE);
            XML_ParserFree(parser);
        }));
        ratios.push_back(ours.back() / bare.back());
        if (round % 8 == 0)
            python.push_back(pythonRead(path));
    }
    std::sort(ratios.begin(), ratios.end());
    std::printf(
        "full list read: %.0f us; bare parse %.0f us, ratio %.2f (%.2f to %.2f in nine of ten); plistlib %.0f us, "
        "ratio %.2f\n",
        median(ours), median(bare), median(ratios), ratios[ratios.size() / 20],
        ratios[ratios.size() - 1 - ratios.size() / 20], median(python), median(ours) / median(python));
    return 0;
}
