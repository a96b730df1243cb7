// SPDX-License-Identifier: GPL-2.0-or-later
// What bvprint writes to standard error and standard output outside a batch's answers.
#pragma once

#include <QString>

namespace bv {

// Writes "bvprint: ", the sentence as one line, and a line end to standard error. Control characters are written out.
void complain(const QString &sentence);

// Writes a text to standard output and flushes it. Control characters are written out. False when it cannot be written.
bool tell(const QString &text);

} // namespace bv
