// SPDX-License-Identifier: GPL-2.0-or-later
// Paths, URLs and standard input as documents.
#include "jobs/DocumentArguments.h"

#include "platform/FileDescriptor.h"
#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("DocumentArguments", text);
}

// Web addresses as well, so that their sentence does not speak of a missing file.
bool isUrl(const QString &word)
{
    return word.startsWith(u"file://", Qt::CaseInsensitive) || (word.contains(u"://") && !QFile::exists(word));
}

Result<QString> pathOfUrl(const QString &word)
{
    const QUrl url(word, QUrl::StrictMode);
    const QString path = url.path(QUrl::FullyDecoded);
    const bool isHere = url.scheme() == u"file" && (url.host().isEmpty() || url.host() == u"localhost");
    return url.isValid() && isHere && !path.isEmpty()
               ? Result<QString>(path)
               : Result<QString>::failure(
                     tr("%1 is no file of this computer; save the document here first.").arg(word));
}

} // namespace

DocumentArguments::DocumentArguments(bool mayReadInput) : m_mayReadInput(mayReadInput) {}
DocumentArguments::~DocumentArguments() = default;
DocumentArguments::DocumentArguments(DocumentArguments &&) noexcept = default;

Result<QStringList> DocumentArguments::paths(const QStringList &words)
{
    QStringList paths;
    for (const QString &word : words) {
        const Result<QString> path = word == u"-" ? keepInput() : isUrl(word) ? pathOfUrl(word) : Result<QString>(word);
        if (!path)
            return Result<QStringList>::failure(path.error());
        paths << path.value();
    }
    return paths;
}

Result<QString> DocumentArguments::keepInput()
{
    using Path = Result<QString>;
    if (!m_mayReadInput)
        return Path::failure(tr("Standard input is no document here: the commands come from it."));
    if (m_folder)
        return Path::failure(tr("Standard input can be printed only once."));
    auto folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/bvprint-XXXXXX"));
    QFile file(folder->filePath(tr("standard input")));
    const QString cannot = tr("Standard input cannot be kept in %1: %2.");
    if (!folder->isValid())
        return Path::failure(cannot.arg(QDir::tempPath(), folder->errorString()));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Path::failure(cannot.arg(QDir::tempPath(), file.errorString()));
    char bytes[65536];
    ssize_t count = 0;
    while ((count = readSome(STDIN_FILENO, bytes)) > 0)
        if (!writeWhole(file, {bytes, size_t(count)}))
            return Path::failure(cannot.arg(QDir::tempPath(), file.errorString()));
    if (count < 0)
        return Path::failure(
            tr("Standard input cannot be read: %1.").arg(QString::fromLocal8Bit(std::strerror(errno))));
    m_folder = std::move(folder);
    return file.fileName();
}

} // namespace bv
