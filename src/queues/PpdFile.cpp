// Opening a PPD file so that every later reader finds it in one state.
#include "queues/PpdFile.h"

#include "queues/Locale.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <cups/cups.h>
#include <cstdlib>
#include <cstring>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PpdFile", text);
}

// What a file that ends too early leaves open. libcups takes such a file for a smaller printer; "" when all is closed.
// Keywords begin their line, and a quoted value may go over several lines (PPD 4.3, sections 3.2 and 3.6).
QString leftOpen(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray option;
    QByteArray group;
    bool quoted = false;
    const QByteArray text = file.readAll().replace('\r', '\n');
    for (const QByteArray &line : text.split('\n')) {
        if (!quoted && line.startsWith("*%"))
            continue;
        if (!quoted && (line.startsWith("*OpenUI") || line.startsWith("*JCLOpenUI")))
            option = line;
        else if (!quoted && (line.startsWith("*CloseUI") || line.startsWith("*JCLCloseUI")))
            option.clear();
        else if (!quoted && line.startsWith("*OpenGroup"))
            group = line;
        else if (!quoted && line.startsWith("*CloseGroup"))
            group.clear();
        // A translation in front of the colon may hold a quote that opens nothing.
        const QByteArray value = quoted ? line : line.mid(line.indexOf(':') + 1).trimmed();
        if (quoted || value.startsWith('"'))
            quoted = quoted != (value.count('"') % 2 == 1);
    }
    if (quoted)
        return tr("a quoted value");
    return QString::fromUtf8(option.isEmpty() ? group : option).simplified();
}

} // namespace

Result<PpdFile> PpdFile::open(const QString &path, const QString &name)
{
    using Ppd = Result<PpdFile>;
    const QString called = name.isEmpty() ? path : name;
    // libcups would open a folder, a device or a pipe as well, and wait for it.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return Ppd::failure(tr("The PPD %1 is no file.").arg(called));
    ppd_file_t *file = ppdOpenFile(QFile::encodeName(path).constData());
    if (!file) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        const QString reason = QString::fromUtf8(ppdErrorString(status));
        return Ppd::failure(status > PPD_ALLOC_ERROR && line > 0
                                ? tr("The PPD %1 cannot be used: %2, line %3.").arg(called, reason).arg(line)
                                : tr("The PPD %1 cannot be read: %2.").arg(called, reason));
    }
    PpdFile ppd(file);
    if (const QString open = leftOpen(path); !open.isEmpty())
        return Ppd::failure(tr("The PPD %1 is cut off: %2 is not closed.").arg(called, open));
    // libcups has converted every text to UTF-8, whether the file says what it was in or not, but tells so only in the
    // first case. The PPD owns the string and frees it with free(3).
    if (!file->lang_encoding)
        file->lang_encoding = strdup("UTF-8");
    if (!messageLocale().isEmpty())
        ppdLocalize(file);
    ppdMarkDefaults(file);
    return ppd;
}

} // namespace bv
