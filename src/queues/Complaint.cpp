// SPDX-License-Identifier: GPL-2.0-or-later
// Writing to the terminal.
#include "queues/Complaint.h"

#include "platform/TerminalText.h"

#include <cstdio>

namespace bv {

void complain(const QString &sentence)
{
    std::fprintf(stderr, "bvprint: %s\n", printableText(sentence.simplified().toStdString()).c_str());
}

bool tell(const QString &text)
{
    return std::fputs(printableText(text.toStdString()).c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
}

} // namespace bv
