// SPDX-License-Identifier: GPL-2.0-or-later
// Existence test and detached start of an application.
#include "platform/ApplicationLauncher.h"

#include "platform/ChildProcess.h"
#include "platform/RootPath.h"

#include <QFile>
#include <QFileInfo>

namespace bv {

bool openApplication(std::string_view logicalPath)
{
    QFileInfo program(QString::fromStdString(mapRootPath(logicalPath)));
    if (program.isDir())
        program.setFile(program.filePath() + QStringLiteral("/Contents/MacOS/") + program.completeBaseName());
    if (!program.isFile() || !program.isExecutable())
        return false;
    return startProgram(QFile::encodeName(program.filePath()).toStdString());
}

} // namespace bv
