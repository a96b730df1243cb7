// SPDX-License-Identifier: GPL-2.0-or-later
// Sentences, and what the desktop's database of file types says.
#include "preview/DocumentNote.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMimeDatabase>
#include <QStyle>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QApplication::translate("DocumentNote", text);
}

QString reason(NoPage why)
{
    switch (why) {
    case NoPage::Locked:
        return tr("It is protected by a password.");
    case NoPage::TooLong:
        return tr("It takes too long to draw.");
    case NoPage::Broken:
        return tr("It cannot be read and may be damaged.");
    case NoPage::Unshown:
    case NoPage::None:
        break;
    }
    return {};
}

DocumentNote noteOfUnshown(const QString &path)
{
    const QFileInfo file(path);
    // By the name alone: the content is not for this process to read.
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    DocumentNote note;
    note.heading = file.fileName();
    const QString size = QLocale().formattedDataSize(file.size());
    note.text = (type.isDefault() ? size : tr("%1, %2").arg(type.comment(), size)) + u'\n' +
                tr("No preview of documents of this kind.");
    note.icon = QIcon::fromTheme(type.iconName());
    if (note.icon.isNull())
        note.icon = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    return note;
}

} // namespace

DocumentNote documentNote(const QString &path, NoPage why)
{
    if (why == NoPage::Unshown)
        return noteOfUnshown(path);
    return {tr("No preview"), reason(why), {}};
}

} // namespace bv
