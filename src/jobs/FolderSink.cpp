// SPDX-License-Identifier: GPL-2.0-or-later
// Stores jobs in folders.
#include "jobs/FolderSink.h"

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

} // namespace

Result<std::optional<int>> FolderSink::submit(const JobRequest &request)
{
    using Sent = Result<std::optional<int>>;
    if (m_folder.isEmpty())
        return std::optional<int>();
    const QDir folder(m_folder);
    int number = 1;
    while (QFileInfo::exists(folder.filePath(QStringLiteral("job-%1").arg(number))))
        ++number;
    const QString name = QStringLiteral("job-%1").arg(number);
    if (!folder.mkpath(name))
        return Sent::failure(tr("The folder %1 cannot be made.").arg(folder.filePath(name)));
    const QDir job(folder.filePath(name));

    QJsonObject options;
    for (const auto &[key, value] : request.options)
        options.insert(key, value);
    QFile file(job.filePath(QStringLiteral("options.json")));
    const QByteArray json = QJsonDocument(options).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size())
        return Sent::failure(tr("%1 cannot be written: %2.").arg(file.fileName(), file.errorString()));
    file.close();
    for (qsizetype i = 0; i < request.documents.size(); ++i) {
        const QFileInfo document(request.documents[i]);
        // The number keeps documents apart that have the same name in different folders.
        const QString copy = job.filePath(QStringLiteral("%1-%2").arg(i + 1).arg(document.fileName()));
        if (!QFile::copy(document.filePath(), copy))
            return Sent::failure(tr("The document %1 cannot be copied to %2.").arg(document.filePath(), copy));
    }
    m_lastJobFolder = job.absolutePath();
    return std::optional<int>(number);
}

QString FolderSink::sentNote() const
{
    return m_lastJobFolder.isEmpty() ? QString()
                                     : tr("The job was written to %1.").arg(QDir::toNativeSeparators(m_lastJobFolder));
}

QString demoOutputFolder()
{
    const QString set = qEnvironmentVariable("BVPRINT_OUTPUT");
    return set.isEmpty() ? stateFolder() + QStringLiteral("/bvprint-jobs") : QDir(set).absolutePath();
}

} // namespace bv
