// Opening a PPD file so that every later reader finds it in one state.
#include "host/PpdFile.h"

#include "host/Locale.h"

#include <QFile>
#include <QFileInfo>
#include <cups/cups.h>
#include <cstdlib>
#include <cstring>

namespace bv {

Result<PpdFile> PpdFile::open(const QString &path)
{
    using Ppd = Result<PpdFile>;
    // libcups would open a folder, a device or a pipe as well, and wait for it.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return Ppd::failure(QStringLiteral("The PPD %1 is no file.").arg(path));
    ppd_file_t *file = ppdOpenFile(QFile::encodeName(path).constData());
    if (!file) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        const QString reason = QString::fromUtf8(ppdErrorString(status));
        return Ppd::failure(status > PPD_ALLOC_ERROR && line > 0
                                ? QStringLiteral("The PPD %1 cannot be used: %2, line %3.").arg(path, reason).arg(line)
                                : QStringLiteral("The PPD %1 cannot be read: %2.").arg(path, reason));
    }
    // libcups has converted every text to UTF-8, whether the file says what it was in or not, but tells so only in the
    // first case. The PPD owns the string and frees it with free(3).
    if (!file->lang_encoding)
        file->lang_encoding = strdup("UTF-8");
    if (!messageLocale().isEmpty())
        ppdLocalize(file);
    ppdMarkDefaults(file);
    return PpdFile(file);
}

} // namespace bv
