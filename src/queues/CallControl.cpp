// SPDX-License-Identifier: GPL-2.0-or-later
// Canceling of slow calls.
#include "queues/CallControl.h"

#include <fcntl.h>
#include <sys/socket.h>

namespace bv {

void CallControl::cancel()
{
    m_cancelled = true;
    std::atomic_ref(m_cancelWord).store(1);
    const std::lock_guard lock(m_mutex);
    if (m_socket)
        shutdown(m_socket.get(), SHUT_RDWR);
}

void CallControl::watchSocket(int descriptor)
{
    const std::lock_guard lock(m_mutex);
    m_socket = FileDescriptor(descriptor < 0 ? -1 : fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
    if (m_socket && m_cancelled)
        shutdown(m_socket.get(), SHUT_RDWR);
}

} // namespace bv
