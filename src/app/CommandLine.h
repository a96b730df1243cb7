// SPDX-License-Identifier: GPL-2.0-or-later
// The command line of bvprint: what the options are called and what they mean.
#pragma once

#include "app/ShareProfiles.h"
#include "commandline/DirectRequest.h"
#include "platform/Result.h"
#include "queues/SessionRequest.h"

#include <QStringList>

namespace bv {

// One parsed command line. Strings are empty where the option was not given.
struct CommandLine
{
    enum class Mode { Dialog, Batch, Direct, Complete, Share, Agent, Help, Version };

    Mode mode = Mode::Dialog;
    SessionRequest session; // --queue, --ppd, --device-uri, --ticket, --no-printer
    QString script;         // --batch: a file of commands, or "-" for standard input
    QString plugin;         // --plugin; empty: the installed or built plug-in
    QString preset;         // --preset: the name of a preset to start from
    QString screenshot;     // --screenshot: a PNG file to save the window to; then it is closed
    QString job;            // --job: a job that is held on the print server, "12" or "QUEUE-12"
    QString agent;          // --agent: "on", "off" or "run"
    QStringList documents;  // the files to print
    ShareRequest share;     // --share-profiles, --from, --replace
    DirectRequest direct;   // --print, --summary, --list, and what goes with them
    QString complete;       // --complete: which words
};

// Reads the arguments, without the program's name. The sentence of a failure names the wrong argument; the program then
// ends with status 2.
Result<CommandLine> parseCommandLine(const QStringList &arguments);

// The names of all options with their dashes.
QStringList commandLineOptions();

// What --help prints.
QString commandLineHelp();

// What --version prints.
QString commandLineVersion();

} // namespace bv
