// SPDX-License-Identifier: GPL-2.0-or-later
// Compares the walk with the same walk outside its fence, and with the standard snmpwalk command: a table of 500 rows
// and 7 columns from the same simulated printer, in paired runs. Prints medians of wall and CPU time, their ratios to
// snmpwalk, and the number of requests; then the ratios of the walk to the one outside. QL70Helper also reads,
// reconciles and writes the stored lists. Usage: walk_bench [PAIRS]
#include "support/ListRoot.h"
#include "support/ProgramUnderTest.h"

#include "discovery/ProfileWalk.h"
#include "discovery/Reconciliation.h"
#include "discovery/SnmpEnvironment.h"
#include "platform/UserName.h"
#include "profiles/HelperRequest.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace {

constexpr char kRoot[] = "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1";

// There is no helper, so the reconciliation reads and writes no list.
class NoHelper : public bv::HelperTransport
{
public:
    bool available() override { return false; }
    std::optional<std::string> run(std::string_view /*request*/, std::span<const std::string> /*arguments*/) override
    {
        return std::nullopt;
    }
};

// Only the walk, without the stored list: as always in a process of its own behind the fence, or in this one.
int walkHere(const char *host, bool isFenced)
{
    const bvtest::TestRoot empty;
    NoHelper noHelper;
    bv::setHelperTransport(&noHelper);
    std::vector<std::string> words = {"snmpwalk", "-Os", "-c", "mirror", "-v", "1", host, kRoot};
    std::vector<char *> vector;
    for (std::string &word : words)
        vector.push_back(word.data());
    vector.push_back(nullptr);
    const auto count = static_cast<int32_t>(words.size());
    if (isFenced)
        return mib_walk(count, vector.data());
    bv::prepareSnmpEnvironment();
    const int32_t status = bv::walkPrinter(count, vector.data(), {}, nullptr);
    vRestructPlistSpool2Current(status);
    return status;
}

struct Sample
{
    double wall = 0; // milliseconds
    double cpu = 0;  // milliseconds, user and system
};

// Runs a program once and discards its output.
Sample timed(const std::vector<std::string> &command)
{
    std::vector<char *> words;
    for (const std::string &word : command)
        words.push_back(const_cast<char *>(word.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t pid = -1;
    if (posix_spawnp(&pid, words[0], &actions, nullptr, words.data(), environ) != 0) {
        std::perror(words[0]);
        std::exit(1);
    }
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage = {};
    wait4(pid, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begin;
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", words[0]);
        std::exit(1);
    }
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return {wall.count(), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime)};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Contender
{
    const char *name;
    std::vector<std::string> command;
    std::vector<Sample> samples = {};
};

double medianOf(const Contender &contender, double Sample::*part)
{
    std::vector<double> values;
    for (const Sample &sample : contender.samples)
        values.push_back(sample.*part);
    return median(values);
}

// Median of the pairwise ratios. Changes in the machine's load affect both runs of a pair.
double medianRatio(const Contender &contender, const Contender &yardstick, double Sample::*part)
{
    std::vector<double> ratios;
    for (size_t i = 0; i < contender.samples.size(); ++i)
        ratios.push_back(contender.samples[i].*part / (yardstick.samples[i].*part));
    return median(ratios);
}

std::vector<std::string> printerCommand()
{
    return {BV_BUILD_DIR "/bin/ql70sim", "--port", "0", "--fault", "rows-500", "--count"};
}

void configure(const bvtest::ListRoot &root, long port)
{
    root.write("snmp/snmp.conf", "mibs :\ndefaultPort " + std::to_string(port) + "\n");
    setenv("SNMPCONFPATH", root.file("snmp").c_str(), 1);
}

// Number of requests of one run, counted by a separate simulated printer.
long requestsOf(const bvtest::ListRoot &root, const std::vector<std::string> &command)
{
    bvtest::ProgramUnderTest printer(printerCommand());
    printer.waitFor("ready on");
    configure(root, printer.numberBehind(" port "));
    timed(command);
    printer.stop();
    return printer.numberBehind("requests=");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--walk") == 0)
        return walkHere(argv[2], true);
    if (argc == 3 && std::strcmp(argv[1], "--unfenced") == 0)
        return walkHere(argv[2], false);
    const int pairs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 21;

    const bvtest::ListRoot root;
    setenv("SNMP_PERSISTENT_DIR", root.folder().string().c_str(), 1);
    const std::string host = "127.0.0.1";
    Contender contenders[] = {
        {"snmpwalk", {"snmpwalk", "-Os", "-c", "mirror", "-v", "1", host, kRoot}},
        {"unfenced", {argv[0], "--unfenced", host}},
        {"mib_walk", {argv[0], "--walk", host}},
        {"QL70Helper",
         {root.folder().string() + kHelperPath, "mibwalk_XPC", "QL70", bv::loginName(), "snmpwalk", "-Os", "-c",
          "mirror", "-v", "1", host, kRoot}},
    };

    std::printf("%-12s %10s %10s %12s %11s %10s\n", "", "wall ms", "CPU ms", "wall ratio", "CPU ratio", "requests");
    bvtest::ProgramUnderTest printer(printerCommand());
    if (!printer.waitFor("ready on")) {
        std::fputs(printer.output().c_str(), stderr);
        return 1;
    }
    configure(root, printer.numberBehind(" port "));
    for (int pair = 0; pair <= pairs; ++pair) {
        // Each round starts with another contender, so that none always follows the same one.
        for (size_t i = 0; i < std::size(contenders); ++i) {
            Contender &contender = contenders[(i + static_cast<size_t>(pair)) % std::size(contenders)];
            const Sample sample = timed(contender.command);
            if (pair > 0) // the first round warms the caches
                contender.samples.push_back(sample);
        }
    }
    for (const Contender &contender : contenders) {
        std::printf("%-12s %10.1f %10.1f %12.2f %11.2f %10ld\n", contender.name, medianOf(contender, &Sample::wall),
                    medianOf(contender, &Sample::cpu), medianRatio(contender, contenders[0], &Sample::wall),
                    medianRatio(contender, contenders[0], &Sample::cpu), requestsOf(root, contender.command));
    }
    std::printf("%s to %s: wall %.3f, CPU %.3f\n", contenders[2].name, contenders[1].name,
                medianRatio(contenders[2], contenders[1], &Sample::wall),
                medianRatio(contenders[2], contenders[1], &Sample::cpu));
    return 0;
}
