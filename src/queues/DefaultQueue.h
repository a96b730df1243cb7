// SPDX-License-Identifier: GPL-2.0-or-later
// Which queue is the default one.
#pragma once

#include "queues/ServerConnection.h"

#include <QStringList>

namespace bv {

// The default queue out of those that exist, as libcups finds it: LPDEST or PRINTER in the environment alone, else the
// user's and the system's file of options (`lpoptions -d`), else the server's. Empty when there is none.
QString defaultQueue(ServerConnection &server, const QStringList &existing);

} // namespace bv
