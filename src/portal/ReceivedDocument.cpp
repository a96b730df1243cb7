// SPDX-License-Identifier: GPL-2.0-or-later
// Copying from files and pipes.
#include "portal/ReceivedDocument.h"

#include "platform/FileDescriptor.h"
#include "queues/InputFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>

namespace bv {

namespace {

constexpr std::chrono::seconds kSilence{30};      // of a pipe
constexpr std::chrono::minutes kCopyingLimit{30}; // for the whole
constexpr int kPollMilliseconds = 100;

QString tr(const char *text)
{
    return QCoreApplication::translate("ReceivedDocument", text);
}

QString fileName(const QString &title)
{
    constexpr qsizetype kLongest = 60; // characters; a file's name may have 255 bytes
    QString name;
    for (const QChar character : title.left(kLongest))
        name += character == u'/' || !character.isPrint() || character.isSurrogate() ? QChar(u' ') : character;
    name = name.simplified();
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? tr("Document") : name;
}

// Reads the next bytes: 0 at the end, -1 with errno on a failure.
class Source
{
public:
    Source(int descriptor, bool isFile) : m_descriptor(descriptor), m_isFile(isFile) {}

    ssize_t read(std::span<char> buffer, const CallControl &control)
    {
        if (!m_isFile)
            return waitForBytes(control) ? readSome(m_descriptor, buffer) : -1;
        ssize_t count = -1;
        do
            count = pread(m_descriptor, buffer.data(), buffer.size(), m_offset);
        while (count < 0 && errno == EINTR);
        m_offset += std::max<ssize_t>(count, 0);
        return count;
    }

private:
    bool waitForBytes(const CallControl &control) const
    {
        const auto end = CallControl::Clock::now() + kSilence;
        while (!control.isOver() && CallControl::Clock::now() < end) {
            pollfd pipe{m_descriptor, POLLIN, 0};
            if (poll(&pipe, 1, kPollMilliseconds) > 0)
                return true;
        }
        errno = ETIMEDOUT;
        return false;
    }

    int m_descriptor;
    bool m_isFile;
    off_t m_offset = 0;
};

} // namespace

ReceivedDocument::ReceivedDocument(const QString &title) : m_path(m_folder.filePath(fileName(title))) {}

QString copyDocument(int descriptor, const QString &path, CallControl &control)
{
    const auto reason = [] { return QString::fromLocal8Bit(std::strerror(errno)); };
    QString tooLarge = tr("The document has more than %1.").arg(sizeInWords(kMostDocumentBytes));
    const QString notKept = tr("The document cannot be kept in %1: %2.").arg(QFileInfo(path).path());
    control.allow(kCopyingLimit);
    struct stat about = {};
    if (fstat(descriptor, &about) != 0 || !(S_ISREG(about.st_mode) || S_ISFIFO(about.st_mode)))
        return tr("What the program wants to print is no file.");
    if (about.st_size > kMostDocumentBytes)
        return tooLarge;
    const FileDescriptor file(
        open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file)
        return notKept.arg(reason());
    Source source(descriptor, S_ISREG(about.st_mode));
    std::array<char, 65536> bytes{};
    qint64 sum = 0;
    for (;;) {
        const ssize_t count = source.read(bytes, control);
        if (count < 0 || control.isOver())
            return tr("The document cannot be read: %1.").arg(reason());
        if (count == 0)
            break;
        sum += count;
        if (sum > kMostDocumentBytes)
            return tooLarge;
        if (!writeAll(file.get(), {bytes.data(), size_t(count)}))
            return notKept.arg(reason());
    }
    return sum > 0 ? QString() : tr("The document is empty.");
}

} // namespace bv
