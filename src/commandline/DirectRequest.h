// SPDX-License-Identifier: GPL-2.0-or-later
// What a command line asks for that needs no window.
#pragma once

#include "queues/SessionRequest.h"

#include <QStringList>

namespace bv {

// Strings are empty where an option was not given.
struct DirectRequest
{
    enum class Task { Print, Summary, List };

    Task task = Task::Print;
    SessionRequest session;
    QString preset;
    QStringList documents; // paths, file URLs, or "-" for standard input
    QStringList options;   // the values of -o as they stand, in their order
    QString copies;        // -n
    QString pages;         // -P
    QString title;         // -t
    bool json = false;
    bool force = false; // do what the rules are against
};

} // namespace bv
