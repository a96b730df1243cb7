// SPDX-License-Identifier: GPL-2.0-or-later
// Reads a PPD file, and brings it into a uniform state for all later readers.
#include "queues/PpdFile.h"

#include "platform/FileDescriptor.h"
#include "queues/InputFile.h"
#include "queues/Locale.h"

#include <QCoreApplication>
#include <QtEndian>
#include <cerrno>
#include <cups/cups.h>
#include <cups/file.h>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PpdFile", text);
}

QString systemWords()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

// Whether a compressed file is cut off. libcups reports this as a normal end. A complete file ends with the length of
// its text, or of its last member if it has several (RFC 1952, 2.3.1).
bool endsEarly(int file, qint64 length)
{
    struct stat about = {};
    uchar last[4] = {};
    return fstat(file, &about) != 0 || about.st_size < 4 || pread(file, last, sizeof last, about.st_size - 4) != 4 ||
           qFromLittleEndian<quint32>(last) > length;
}

struct CloseCupsFile
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

// The text as libcups reads it, decompressed if necessary. A damaged file is a failure.
Result<PpdText> readText(const FileDescriptor &source, const QString &name)
{
    using Text = Result<PpdText>;
    // libcups closes the descriptor that it is given.
    FileDescriptor copy(fcntl(source.get(), F_DUPFD_CLOEXEC, 0));
    const std::unique_ptr<cups_file_t, CloseCupsFile> file(copy ? cupsFileOpenFd(copy.get(), "r") : nullptr);
    if (!file)
        return Text::failure(tr("%1 cannot be read: %2.").arg(name, systemWords()));
    copy.release();
    QByteArray text;
    char bytes[16384];
    for (;;) {
        errno = 0;
        const ssize_t count = cupsFileRead(file.get(), bytes, sizeof bytes);
        if (count <= 0)
            break;
        text.append(bytes, count);
        if (text.size() > PpdText::kMost)
            return Text::failure(PpdText::tooLarge(name));
    }
    // The read function returns the same value for the end and for an error. Only an error sets errno.
    if (errno != 0 || (cupsFileCompression(file.get()) && endsEarly(source.get(), text.size())))
        return Text::failure(tr("%1 is damaged or cut off.").arg(name));
    return PpdText{text, name};
}

// A file without a name that holds the bytes. No temporary folder is needed for it.
FileDescriptor fileInMemory(const QByteArray &bytes)
{
    FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
    if (!file || !writeAll(file.get(), {bytes.constData(), size_t(bytes.size())}) ||
        lseek(file.get(), 0, SEEK_SET) != 0)
        return FileDescriptor();
    return file;
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

QString PpdText::tooLarge(const QString &name)
{
    return tr("%1 is larger than %2.").arg(name, sizeInWords(kMost));
}

Result<PpdText> PpdText::read(const QString &path)
{
    const QString name = tr("The PPD %1").arg(path);
    const Result<FileDescriptor> file = openInputFile(path, name, kMost);
    return file ? readText(file.value(), name) : Result<PpdText>::failure(file.error());
}

Result<PpdText> PpdText::from(const QByteArray &bytes, const QString &name)
{
    const FileDescriptor file = fileInMemory(bytes);
    return file ? readText(file, name)
                : Result<PpdText>::failure(tr("%1 cannot be read: %2.").arg(name, systemWords()));
}

Result<PpdFile> PpdFile::open(const QString &path)
{
    const Result<PpdText> text = PpdText::read(path);
    return text ? open(text.value()) : Result<PpdFile>::failure(text.error());
}

Result<PpdFile> PpdFile::open(const PpdText &text)
{
    using Ppd = Result<PpdFile>;
    FileDescriptor memory = fileInMemory(text.text);
    if (!memory)
        return Ppd::failure(tr("%1 cannot be read: %2.").arg(text.name, systemWords()));
    ppd_file_t *file = ppdOpenFd(memory.release()); // libcups closes it
    if (!file) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        const QString reason = QString::fromUtf8(ppdErrorString(status));
        return Ppd::failure(status > PPD_ALLOC_ERROR && line > 0
                                ? tr("%1 cannot be used: %2, line %3.").arg(text.name, reason, QString::number(line))
                                : tr("%1 cannot be read: %2.").arg(text.name, reason));
    }
    PpdFile ppd(file);
    if (const QString open = leftOpen(text.text); !open.isEmpty())
        return Ppd::failure(tr("%1 is cut off: %2 is not closed.").arg(text.name, open));
    // libcups converts every text to UTF-8, but sets lang_encoding only if the file names its encoding. The PPD owns
    // the string and frees it with free(3).
    if (!file->lang_encoding)
        file->lang_encoding = strdup("UTF-8");
    if (!isLocaleC())
        ppdLocalize(file);
    ppdMarkDefaults(file);
    return ppd;
}

std::vector<ppd_option_t *> ppdOptions(ppd_file_t *ppd)
{
    std::vector<ppd_option_t *> options;
    for (ppd_option_t *one = ppdFirstOption(ppd); one; one = ppdNextOption(ppd))
        options.push_back(one);
    std::erase_if(options, [ppd](const ppd_option_t *one) { return ppdFindOption(ppd, one->keyword) != one; });
    return options;
}

} // namespace bv
