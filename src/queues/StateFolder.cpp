// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the user's state folder.
#include "queues/StateFolder.h"

#include <QDir>

namespace bv {

QString stateFolder()
{
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
}

} // namespace bv
