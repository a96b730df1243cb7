// SPDX-License-Identifier: GPL-2.0-or-later
// ql70sim: the simulated printer. Serves its table of color profiles over SNMP version 1.
#include "platform/TerminalText.h"
#include "simulator/Agent.h"

#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <getopt.h>
#include <unistd.h>

namespace {

constexpr int kExitPort = 1;
constexpr int kExitUsage = 2;

struct Options
{
    int port = -1;
    std::string address = "127.0.0.1";
    std::string profiles;
    const sim::Fault *fault = nullptr;
    bool count = false;
};

void printHelp()
{
    std::puts("Usage: ql70sim --port N [--address A] [--profiles FILE] [--fault NAME] [--count]\n"
              "Serves the profile table of a simulated QL70 printer over SNMPv1, read community \"mirror\".\n"
              "\n"
              "  --port N         the UDP port; 0 takes a free one, which the ready line tells\n"
              "  --address A      the address to listen on (default 127.0.0.1)\n"
              "  --profiles FILE  the list of profiles (default: a list of its own); read again on SIGHUP\n"
              "  --fault NAME     fails in one of the ways below\n"
              "  --count          prints the number of requests at the end\n"
              "  --help           prints this\n"
              "\n"
              "Prints one line when it is ready, and ends on SIGTERM. Exit status: 0; 1 the port cannot be had;\n"
              "2 bad arguments or a bad list.\n"
              "\n"
              "Faults:");
    for (const sim::Fault &fault : sim::faults())
        std::printf("  %-18s %s\n", fault.name, fault.description);
}

// Arguments and names of files may hold anything.
void complain(const std::string &problem)
{
    std::fprintf(stderr, "ql70sim: %s\n", bv::printableText(problem).c_str());
}

[[noreturn]] void refuse(const std::string &problem)
{
    complain(problem + " (--help tells more)");
    std::exit(kExitUsage);
}

int portNumber(std::string_view text)
{
    int port = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size() || port < 0 || port > 65535)
        refuse("\"" + std::string(text) + "\" is no port");
    return port;
}

Options parseArguments(int argc, char **argv)
{
    // No letters: optopt is then a letter only for a word like "-x".
    enum { Port = 1, Address, Profiles, Fault, Count, Help };
    // clang-format off
    constexpr std::array<option, 7> kLongOptions = {{
        {"port",     required_argument, nullptr, Port},
        {"address",  required_argument, nullptr, Address},
        {"profiles", required_argument, nullptr, Profiles},
        {"fault",    required_argument, nullptr, Fault},
        {"count",    no_argument,       nullptr, Count},
        {"help",     no_argument,       nullptr, Help},
        {nullptr,    0,                 nullptr, 0},
    }};
    // clang-format on
    Options options;
    opterr = 0;
    for (int name; (name = getopt_long(argc, argv, ":", kLongOptions.data(), nullptr)) != -1;) {
        switch (name) {
        case Port:
            options.port = portNumber(optarg);
            break;
        case Address:
            options.address = optarg;
            break;
        case Profiles:
            options.profiles = optarg;
            break;
        case Fault:
            options.fault = sim::findFault(optarg);
            if (!options.fault)
                refuse("there is no fault \"" + std::string(optarg) + "\"");
            break;
        case Count:
            options.count = true;
            break;
        case Help:
            printHelp();
            std::exit(0);
        case ':':
            refuse("the option \"" + std::string(argv[optind - 1]) + "\" needs a value");
        default:
            if (optopt > 0 && optopt <= Help)
                refuse("\"" + std::string(argv[optind - 1]) + "\" has a value that it does not take");
            refuse("\"" + (optopt == 0 ? std::string(argv[optind - 1]) : std::string{'-', char(optopt)}) +
                   "\" is an unrecognized option");
        }
    }
    if (optind < argc)
        refuse("\"" + std::string(argv[optind]) + "\" is one argument too many");
    if (options.port < 0)
        refuse("--port is missing");
    return options;
}

sim::ProfileFile profilesFor(const Options &options)
{
    return options.profiles.empty() ? sim::ProfileFile{sim::defaultProfiles(), {}}
                                    : sim::readProfiles(options.profiles);
}

// Signals are written as bytes into a pipe that the agent's loop watches, so none is lost.
int signalPipe[2];

void noteSignal(int number)
{
    const auto byte = static_cast<unsigned char>(number);
    if (write(signalPipe[1], &byte, 1) != 1)
        return; // the pipe is full of unread signals
}

bool catchSignals()
{
    if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaction(number, &action, nullptr);
    return true;
}

// Reads the list again. If it has a mistake, the printer keeps its old list.
void reload(const Options &options, sim::Agent *agent)
{
    const sim::ProfileFile file = profilesFor(options);
    if (!file.error.empty()) {
        complain(options.profiles + ": " + file.error);
        return;
    }
    agent->serve(file.rows);
    std::printf("ql70sim: list read again, %zu rows\n", file.rows.size());
    std::fflush(stdout);
}

void takeSignals(const Options &options, sim::Agent *agent)
{
    for (unsigned char number = 0; read(signalPipe[0], &number, 1) == 1;) {
        if (number == SIGHUP)
            reload(options, agent);
        else
            agent->stop();
    }
}

} // namespace

int main(int argc, char **argv)
{
    const Options options = parseArguments(argc, argv);
    const sim::ProfileFile file = profilesFor(options);
    if (!file.error.empty())
        refuse(options.profiles + ": " + file.error);
    if (!catchSignals())
        return kExitPort;

    sim::Agent agent(options.fault);
    agent.serve(file.rows);
    std::string problem;
    if (!agent.listen(options.address, options.port, &problem)) {
        complain(problem);
        return kExitPort;
    }
    agent.watch(signalPipe[0], [&options, &agent] { takeSignals(options, &agent); });
    std::printf("ql70sim: ready on %s port %d\n", options.address.c_str(), agent.port());
    std::fflush(stdout);
    agent.run();
    if (options.count)
        std::printf("ql70sim: requests=%ld\n", agent.requests());
    return 0;
}
