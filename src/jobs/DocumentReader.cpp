// SPDX-License-Identifier: GPL-2.0-or-later
// Reading documents.
#include "jobs/DocumentReader.h"

#include "queues/InputFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <sys/stat.h>

namespace bv {

namespace {

// A job has a minute, and in all as long as this speed needs. A slower receiver is as good as none.
constexpr std::chrono::milliseconds kJobLimit{60000};
constexpr qint64 kSlowestBytesPerMillisecond = 10;

QString tr(const char *text)
{
    return QCoreApplication::translate("DocumentReader", text);
}

} // namespace

void allowForDocuments(CallControl &control, const QStringList &documents)
{
    qint64 sum = 0;
    for (const QString &path : documents)
        sum += QFileInfo(path).size();
    control.setSum(sum);
    control.allow(kJobLimit + std::chrono::milliseconds(sum / kSlowestBytesPerMillisecond));
}

DocumentReader::DocumentReader(QString path, FileDescriptor file, qint64 size)
    : m_path(std::move(path)), m_file(std::move(file)), m_size(size)
{}

Result<DocumentReader> DocumentReader::open(const QString &path)
{
    using Reader = Result<DocumentReader>;
    Result<FileDescriptor> file =
        openInputFile(path, tr("The document %1").arg(path), std::numeric_limits<qint64>::max());
    if (!file)
        return Reader::failure(file.error());
    struct stat about = {};
    fstat(file.value().get(), &about);
    // For an empty file the print server would only say that there is no file.
    if (about.st_size == 0)
        return Reader::failure(tr("The document %1 is empty.").arg(path));
    return DocumentReader(path, std::move(file.value()), about.st_size);
}

QString DocumentReader::readAll(CallControl &control, const std::function<bool(std::span<const char>)> &take)
{
    char bytes[65536];
    for (qint64 left = m_size; left > 0 && !control.isOver();) {
        const auto wanted = static_cast<size_t>(std::min<qint64>(left, sizeof bytes));
        const ssize_t count = readSome(m_file.get(), {bytes, wanted});
        if (count < 0)
            return tr("The document %1 cannot be read: %2.").arg(m_path, QString::fromLocal8Bit(std::strerror(errno)));
        if (count == 0)
            return tr("The document %1 became shorter while it was being sent.").arg(m_path);
        if (!take({bytes, static_cast<size_t>(count)}))
            return {};
        control.addDone(count);
        left -= count;
    }
    return {};
}

} // namespace bv
