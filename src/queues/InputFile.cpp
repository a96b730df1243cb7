// SPDX-License-Identifier: GPL-2.0-or-later
// The kind of a file is judged on the open descriptor.
#include "queues/InputFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("InputFile", text);
}

QString unreadable(const QString &called)
{
    return tr("%1 cannot be read: %2.").arg(called, QString::fromLocal8Bit(std::strerror(errno)));
}

QString tooLarge(const QString &called, qint64 maximum)
{
    return tr("%1 is larger than %2.").arg(called, sizeInWords(maximum));
}

} // namespace

QString sizeInWords(qint64 bytes)
{
    return tr("%1 MB").arg(QLocale().toString(bytes / (1024LL * 1024)));
}

Result<FileDescriptor> openInputFile(const QString &path, const QString &called, qint64 maximum)
{
    using File = Result<FileDescriptor>;
    FileDescriptor file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat about = {};
    if (!file || fstat(file.get(), &about) != 0)
        return File::failure(unreadable(called));
    if (!S_ISREG(about.st_mode))
        return File::failure(tr("%1 is no file.").arg(called));
    if (about.st_size > maximum)
        return File::failure(tooLarge(called, maximum));
    return file;
}

Result<QByteArray> readInputFile(const QString &path, const QString &called, qint64 maximum)
{
    using Contents = Result<QByteArray>;
    const Result<FileDescriptor> file = openInputFile(path, called, maximum);
    if (!file)
        return Contents::failure(file.error());
    std::string text;
    if (!readToEnd(file.value().get(), &text, size_t(maximum)))
        return Contents::failure(unreadable(called));
    if (text.size() > size_t(maximum))
        return Contents::failure(tooLarge(called, maximum));
    return QByteArray(text.data(), qsizetype(text.size()));
}

} // namespace bv
