// SPDX-License-Identifier: GPL-2.0-or-later
// Finds the user's folders, and writes files.
#include "queues/StateFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSaveFile>

namespace bv {

namespace {

// File names have at most 255 bytes. The difference leaves room for suffixes.
constexpr qsizetype kLongestName = 200;

QString userFolder(const char *variable, const QString &inHome)
{
    const QString set = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(set) ? set : QDir::homePath() + inHome;
}

} // namespace

QString stateFolder()
{
    return userFolder("XDG_STATE_HOME", QStringLiteral("/.local/state"));
}

QString configFolder()
{
    return userFolder("XDG_CONFIG_HOME", QStringLiteral("/.config"));
}

QString safeFileName(const QString &text)
{
    // Percent-encoding leaves letters, digits, "-" and "_"; a dot in front would hide the file or lead out of the
    // folder, so dots and tildes are encoded as well.
    QByteArray name = text.toUtf8().toPercentEncoding(QByteArray(), ".~");
    if (name.size() > kLongestName) {
        const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
        name = name.left(kLongestName - digest.size() - 1) + '+' + digest;
    }
    return QString::fromLatin1(name);
}

bool writeWhole(QFileDevice &file, std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const qint64 written = file.write(bytes.data(), qint64(bytes.size()));
        if (written <= 0)
            return false;
        bytes = bytes.subspan(size_t(written));
    }
    return true;
}

bool storeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    QSaveFile file(path);
    QDir().mkpath(QFileInfo(path).path()); // says not why it fails; opening the file does
    // Unbuffered, since commit() does not see that a write of its own fails.
    const bool isStored = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                          writeWhole(file, {bytes.constData(), size_t(bytes.size())}) && file.commit();
    if (!isStored)
        *error = file.errorString();
    return isStored;
}

} // namespace bv
