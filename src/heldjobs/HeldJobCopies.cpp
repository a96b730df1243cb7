// SPDX-License-Identifier: GPL-2.0-or-later
// Fetches each document by its number (CUPS-Get-Document).
#include "heldjobs/HeldJobCopies.h"

#include <QCoreApplication>
#include <QFile>
#include <QMimeDatabase>
#include <algorithm>
#include <chrono>

namespace bv {

namespace {

using Copies = Result<QStringList>;

constexpr std::chrono::minutes kFetchLimit{10};
constexpr int kMostDocuments = 100;
constexpr qsizetype kLongestName = 100;

QString tr(const char *text)
{
    return QCoreApplication::translate("HeldJobCopies", text);
}

} // namespace

QString copyName(const QString &document, const QString &format, int number, const QStringList &taken)
{
    QString name = document.mid(document.lastIndexOf(u'/') + 1);
    name.remove(QChar::Null);
    if (name.isEmpty() || name == u"." || name == u"..")
        name = tr("Document %1").arg(number);
    name = name.right(kLongestName);
    const QMimeDatabase types;
    const QMimeType type = types.mimeTypeForName(format);
    const QString ending = type.isValid() && !type.isDefault() ? type.preferredSuffix() : QString();
    if (!ending.isEmpty() && !type.suffixes().contains(QFileInfo(name).suffix(), Qt::CaseInsensitive))
        name += u'.' + ending;
    return taken.contains(name) ? QStringLiteral("%1-%2").arg(number).arg(name) : name;
}

Copies copyDocuments(const HeldJob &job, const std::shared_ptr<QTemporaryDir> &folder, CallControl &control,
                     qint64 space)
{
    if (!folder->isValid() || job.documents > kMostDocuments)
        return Copies::failure(tr("No preview: the documents cannot be kept."));
    control.allow(kFetchLimit);
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Copies::failure(server.error());
    QStringList names;
    QStringList paths;
    for (int number = 1; number <= job.documents; ++number) {
        const QString part = folder->filePath(QStringLiteral(".part"));
        QFile file(part);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return Copies::failure(tr("No preview: the documents cannot be kept."));
        const IppMessage request = jobRequest(IPP_OP_CUPS_GET_DOCUMENT, {job.id, {}});
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "document-number", number);
        const ServerAnswer answer = server.value().askForDocument(request, file.handle(), space);
        if (!answer.isGood())
            return Copies::failure(answer.message ? tr("No preview: the print server does not give the document out.")
                                                  : tr("No preview: %1").arg(answer.problem));
        space -= file.size();
        const QString told = textOf(answer.message.get(), "document-name");
        const QString name = copyName(told.isEmpty() ? job.documentName : told,
                                      textOf(answer.message.get(), "document-format"), number, names);
        names << name;
        paths << folder->filePath(name);
        if (!file.rename(paths.back()))
            return Copies::failure(tr("No preview: the documents cannot be kept."));
    }
    return paths;
}

} // namespace bv
