// SPDX-License-Identifier: GPL-2.0-or-later
// Stores jobs in folders.
#include "jobs/FolderSink.h"

#include "jobs/DocumentReader.h"
#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FolderSink", text);
}

// Both return a sentence for the user on a failure.

QString writeOptions(const JobOptions &options, const QString &path)
{
    QJsonObject object;
    for (const auto &[key, value] : options)
        object.insert(key, value);
    QFile file(path);
    const QByteArray json = QJsonDocument(object).toJson();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        !writeWhole(file, {json.constData(), size_t(json.size())}))
        return tr("%1 cannot be written: %2.").arg(path, file.errorString());
    return {};
}

QString copyDocument(const QString &path, const QString &target, CallControl &control)
{
    Result<DocumentReader> document = DocumentReader::open(path);
    if (!document)
        return document.error();
    QFile copy(target);
    bool written = copy.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
    const auto write = [&](std::span<const char> bytes) {
        written = writeWhole(copy, bytes);
        return written;
    };
    QString error = written ? document.value().readAll(control, write) : QString();
    if (!written)
        return tr("The document %1 cannot be copied to %2: %3.").arg(path, target, copy.errorString());
    if (error.isEmpty() && control.isOver())
        return tr("The job was canceled. Nothing was printed.");
    return error;
}

QString storeJob(const JobRequest &request, const QDir &folder, CallControl &control)
{
    if (QString error = writeOptions(request.options, folder.filePath(QStringLiteral("options.json")));
        !error.isEmpty())
        return error;
    for (qsizetype i = 0; i < request.documents.size(); ++i) {
        // The number keeps documents apart that have the same name in different folders.
        const QString name = QStringLiteral("%1-%2").arg(i + 1).arg(QFileInfo(request.documents[i]).fileName());
        if (QString error = copyDocument(request.documents[i], folder.filePath(name), control); !error.isEmpty())
            return error;
    }
    return {};
}

} // namespace

Result<SentJob> FolderSink::submit(const JobRequest &request, CallControl &control) const
{
    using Sent = Result<SentJob>;
    if (m_folder.isEmpty())
        return SentJob();
    allowForDocuments(control, request.documents);
    const QDir folder(m_folder);
    if (!folder.mkpath(QStringLiteral(".")))
        return Sent::failure(tr("The folder %1 cannot be made.").arg(folder.path()));
    // Making the folder takes the number, should another program look for one at the same time.
    int number = 1;
    QDir job;
    for (;; ++number) {
        job = QDir(folder.filePath(QStringLiteral("job-%1").arg(number)));
        if (!QFileInfo::exists(job.path()) && folder.mkdir(job.dirName()))
            break;
        if (!QFileInfo::exists(job.path()))
            return Sent::failure(tr("The folder %1 cannot be made.").arg(job.path()));
    }
    if (const QString error = storeJob(request, job, control); !error.isEmpty()) {
        job.removeRecursively();
        return Sent::failure(error);
    }
    return SentJob{number, tr("The job was written to %1.").arg(QDir::toNativeSeparators(job.absolutePath()))};
}

QString demoOutputFolder()
{
    const QString set = qEnvironmentVariable("BVPRINT_OUTPUT");
    return set.isEmpty() ? stateFolder() + QStringLiteral("/bvprint-jobs") : QDir(set).absolutePath();
}

} // namespace bv
