// SPDX-License-Identifier: GPL-2.0-or-later
// Watching standard input.
#include "portal/ClosingWatch.h"

#include "platform/FileDescriptor.h"

#include <array>
#include <poll.h>
#include <unistd.h>

namespace bv {

ClosingWatch::ClosingWatch() : m_notifier(STDIN_FILENO, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &ClosingWatch::readOn);
    pollfd input{STDIN_FILENO, POLLIN, 0};
    if (poll(&input, 1, 0) > 0)
        readOn();
}

void ClosingWatch::readOn()
{
    std::array<char, 256> ignored{};
    if (readSome(STDIN_FILENO, ignored) > 0)
        return;
    m_notifier.setEnabled(false);
    m_isClosed = true;
    emit closed();
}

} // namespace bv
