// The command line of bvprint: what the options are called and what they mean.
#pragma once

#include "host/Result.h"

#include <QStringList>

namespace bv {

// One parsed command line. Strings are empty where the option was not given.
struct CommandLine
{
    enum class Mode { Dialog, Batch, Help, Version };

    Mode mode = Mode::Dialog;
    QString script;         // --batch: a file of commands, or "-" for standard input
    QString plugin;         // --plugin; empty: the installed or built plug-in
    QString queue;          // --queue; empty: the print server's default, or "QL70" with --ppd
    QString ppd;            // --ppd; not empty: no print server is asked for anything
    QString deviceUri;      // --device-uri
    QString ticket;         // --ticket: a JSON file to start from
    QString screenshot;     // --screenshot: a PNG file for the ready window, which is then closed
    bool noPrinter = false; // --no-printer: the session has no current printer
    QStringList documents;  // the files to print

    // The name of the queue when --ppd stands in for a print server.
    QString queueWithoutServer() const;
};

// Reads the arguments, without the program's name. The sentence of a failure says which argument is wrong; the
// program then ends with status 2.
Result<CommandLine> parseCommandLine(const QStringList &arguments);

// What --help prints.
QString commandLineHelp();

// What --version prints.
QString commandLineVersion();

} // namespace bv
