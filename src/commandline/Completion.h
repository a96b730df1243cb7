// SPDX-License-Identifier: GPL-2.0-or-later
// Words for the completion of shells.
#pragma once

#include "queues/SessionRequest.h"

namespace bv {

// Writes words to standard output, one a line: for "queues" the queues and their instances, for "presets" those of the
// session's queue, for "keywords" all that -o takes, each with "=" behind it, and for "KEYWORD=" its choices. Gives a
// print server two seconds and needs no plug-in. Returns the exit status: 1 without a word of complaint if the words
// cannot be had, since nobody would read it.
int complete(const QString &what, const SessionRequest &session);

} // namespace bv
