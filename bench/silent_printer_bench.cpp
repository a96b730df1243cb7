// SPDX-License-Identifier: GPL-2.0-or-later
// Measures how long a silent printer delays the dialog: the time of panelView, which refreshes the profiles. The cases
// are a queue without an address, a printer that answers, a silent printer (with the SNMP library's default time-outs,
// and with one second and no retry), and Bonjour names that do not resolve. Prints medians, differences from the
// answering printer, and the number of requests in all runs.
#include "PanelOpening.h"
#include "support/ListRoot.h"
#include "support/PaneFixture.h"
#include "support/ProgramUnderTest.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr char kNoService[] = "dnssd://Nobody%20here._pdl-datastream._tcp.local./?uuid=1";

struct Case
{
    const char *name;
    const char *uri;   // null: the queue has no address
    const char *fault; // fault of the simulated printer; null: there is no printer
    const char *limits;
    int runs;
};

constexpr Case kCases[] = {
    {"no address", nullptr, nullptr, "", 11},
    {"answering", "lpd://127.0.0.1/q", "", "", 11},
    {"silent, library's time-outs", "lpd://127.0.0.1/q", "silent", "", 3},
    {"silent, timeout 1, retries 0", "lpd://127.0.0.1/q", "silent", "timeout 1\nretries 0\n", 5},
    {"Bonjour without a daemon", kNoService, nullptr, "", 11},
};
constexpr Case kUnknownName = {"Bonjour name that is not there", kNoService, nullptr, "", 5};

// Median time of panelView for this case.
double viewTime(const Case &one)
{
    const bvtest::TestPpd ppd;
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    if (one.uri)
        session.uri = QString::fromLatin1(one.uri);
    bvtest::TestCallback callback;
    callback.settings = &ticket;
    callback.session = &session;
    callback.ppd = ppd.get();
    std::vector<double> times;
    // A first opening warms the caches. It is skipped for slow cases, where it would only cost time.
    if (one.runs > 5)
        bvbench::openPanel(callback);
    for (int run = 0; run < one.runs; ++run)
        times.push_back(bvbench::openPanel(callback).view);
    return bvbench::median(times);
}

void report(const Case &one, double &answering)
{
    const bvtest::ListRoot root;
    setenv("SNMP_PERSISTENT_DIR", root.folder().c_str(), 1);
    std::unique_ptr<bvtest::ProgramUnderTest> printer;
    if (one.fault) {
        std::vector<std::string> command = {BV_BUILD_DIR "/bin/ql70sim", "--port", "0", "--count"};
        if (*one.fault)
            command.insert(command.end(), {"--fault", one.fault});
        printer = std::make_unique<bvtest::ProgramUnderTest>(command);
        printer->waitFor("ready on");
        root.write("snmp/snmp.conf",
                   "mibs :\ndefaultPort " + std::to_string(printer->numberBehind(" port ")) + '\n' + one.limits);
        setenv("SNMPCONFPATH", root.file("snmp").c_str(), 1);
    }
    const double time = viewTime(one);
    if (std::strcmp(one.name, "answering") == 0)
        answering = time;
    std::printf("%-32s %9.1f ms", one.name, time);
    if (answering > 0)
        std::printf("  %+9.1f ms to answering", time - answering);
    if (printer) {
        printer->stop();
        std::printf("  %ld requests in %d runs", printer->numberBehind("requests="), one.runs + (one.runs > 5));
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    double answering = 0;
    if (argc == 2 && std::strcmp(argv[1], "--unknown-name") == 0) {
        report(kCases[0], answering);
        report(kUnknownName, answering);
        return 0;
    }
    // Keeps the machine's own daemons out of the measurement.
    setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus", 1);
    for (const Case &one : kCases)
        report(one, answering);
    // A name can only be unknown if a daemon answers. So this case runs in a network namespace, where the machine
    // allows one.
    unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    std::printf("in a network of its own:\n");
    std::fflush(stdout);
    bvtest::ProgramUnderTest inside(
        {"sh", BV_SOURCE_DIR "/tests/support/in_bonjour_namespace.sh", argv[0], "--unknown-name"});
    const int status = inside.wait();
    std::fputs(inside.output().c_str(), stdout);
    return status == 77 ? 0 : status;
}
