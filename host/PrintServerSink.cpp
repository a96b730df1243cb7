// Jobs over libcups.
#include "host/JobSink.h"

#include "host/PrintServer.h"

#include <QFile>
#include <QFileInfo>

namespace bv {

Result<std::optional<int>> PrintServerSink::submit(const JobRequest &)
{
    return Result<std::optional<int>>::failure(QStringLiteral("Not connected."));
}

} // namespace bv
