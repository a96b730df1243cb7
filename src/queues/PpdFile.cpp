// SPDX-License-Identifier: GPL-2.0-or-later
// Opens a PPD file and brings it into a uniform state for all later readers.
#include "queues/PpdFile.h"

#include "queues/Locale.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <cerrno>
#include <cups/cups.h>
#include <cups/file.h>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PpdFile", text);
}

// Whether a compressed file is cut off. libcups reports this as a normal end. A complete file ends with the length of
// its text, or of its last member if it has several (RFC 1952, 2.3.1).
bool endsEarly(const QString &path, qint64 length)
{
    QFile file(path);
    QByteArray last;
    if (file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(file.size() - 4, 0)))
        last = file.read(4);
    return last.size() < 4 || qFromLittleEndian<quint32>(last.constData()) > length;
}

struct CloseCupsFile
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

// The text as libcups reads it, decompressed if necessary. Nothing when the file is damaged.
std::optional<QByteArray> readText(const QString &path)
{
    const std::unique_ptr<cups_file_t, CloseCupsFile> file(cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    if (!file)
        return std::nullopt;
    QByteArray text;
    char bytes[16384];
    for (;;) {
        errno = 0;
        const ssize_t count = cupsFileRead(file.get(), bytes, sizeof bytes);
        if (count <= 0)
            break;
        text.append(bytes, count);
    }
    // The read function returns the same value for the end and for an error. Only an error sets errno.
    if (errno != 0 || (cupsFileCompression(file.get()) && endsEarly(path, text.size())))
        return std::nullopt;
    return text;
}

// Names what is still open at the end of a truncated text; "" when nothing is. libcups would accept such a text as a
// printer with fewer options. Keywords begin their line, and a quoted value may go over several lines (PPD 4.3,
// sections 3.2 and 3.6).
QString leftOpen(QByteArray text)
{
    QByteArray option;
    QByteArray group;
    bool quoted = false;
    text.replace('\r', '\n');
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
        // A translation before the colon may contain a quote that does not open a value.
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
    // libcups would also open a folder, a device or a pipe, and could block.
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
    const std::optional<QByteArray> text = readText(path);
    if (!text)
        return Ppd::failure(tr("The PPD %1 is damaged or cut off.").arg(called));
    if (const QString open = leftOpen(*text); !open.isEmpty())
        return Ppd::failure(tr("The PPD %1 is cut off: %2 is not closed.").arg(called, open));
    // libcups converts every text to UTF-8, but sets lang_encoding only if the file names its encoding. The PPD owns
    // the string and frees it with free(3).
    if (!file->lang_encoding)
        file->lang_encoding = strdup("UTF-8");
    if (!isLocaleC())
        ppdLocalize(file);
    ppdMarkDefaults(file);
    return ppd;
}

} // namespace bv
