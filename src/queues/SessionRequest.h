// SPDX-License-Identifier: GPL-2.0-or-later
// What a command line says about the queue to work with.
#pragma once

#include <QString>

namespace bv {

// A string is empty when its option was not given.
struct SessionRequest
{
    QString queue;          // the queue's name; empty: the print server's default
    QString ppd;            // a PPD file; not empty: it is used instead of a print server
    QString deviceUri;      // replaces the queue's own device URI
    QString ticket;         // a JSON file to start from
    bool noPrinter = false; // with a PPD file: the session has no current printer

    bool usesServer() const { return ppd.isEmpty(); }
    // The name of the queue when a PPD file is used instead of a print server.
    QString queueWithoutServer() const { return queue.isEmpty() ? QStringLiteral("QL70") : queue; }
};

} // namespace bv
