// SPDX-License-Identifier: GPL-2.0-or-later
// Open files that programs hand over, good and bad.
#include "platform/FileDescriptor.h"
#include "portal/ReceivedDocument.h"

#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

using namespace bv;

namespace {

class Received : public ::testing::Test
{
protected:
    std::string copy(int descriptor)
    {
        CallControl control;
        return copyDocument(descriptor, m_document.path(), control).toStdString();
    }
    FileDescriptor file(const QByteArray &bytes, int flags = O_RDWR)
    {
        FileDescriptor made(open(QFile::encodeName(m_folder.filePath("in")).constData(), flags | O_CREAT, 0600));
        EXPECT_TRUE(writeAll(made.get(), {bytes.constData(), size_t(bytes.size())}));
        return made;
    }
    QByteArray copied() const
    {
        QFile got(m_document.path());
        return got.open(QIODevice::ReadOnly) ? got.readAll() : QByteArray("-");
    }

    QTemporaryDir m_folder;
    ReceivedDocument m_document{QStringLiteral("../a/b\n\u202e.pdf")};
};

TEST_F(Received, IsCopiedFromItsBeginningAndKeepsItsPlace)
{
    // Named after the title, but in its own folder.
    EXPECT_FALSE(QFileInfo(m_document.path()).fileName().contains(u'/'));
    EXPECT_FALSE(QFileInfo(m_document.path()).fileName().startsWith(u'.'));
    const QByteArray bytes(200000, 'x');
    const FileDescriptor in = file(bytes);
    EXPECT_EQ(copy(in.get()), "");
    EXPECT_EQ(copied(), bytes);
    EXPECT_EQ(lseek(in.get(), 0, SEEK_CUR), bytes.size());
}

TEST_F(Received, MayComeThroughAPipe)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const FileDescriptor out(ends[0]);
    const QByteArray bytes(300000, 'y');
    std::thread writer([end = ends[1], &bytes] {
        const FileDescriptor in(end);
        writeAll(in.get(), {bytes.constData(), size_t(bytes.size())});
    });
    EXPECT_EQ(copy(out.get()), "");
    writer.join();
    EXPECT_EQ(copied(), bytes);
}

TEST_F(Received, ThatIsNoDocumentIsRefused)
{
    const FileDescriptor device(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    const FileDescriptor folder(open("/", O_RDONLY | O_CLOEXEC));
    for (const int descriptor : {device.get(), folder.get(), -1})
        EXPECT_NE(copy(descriptor).find("is no file"), std::string::npos);
    EXPECT_NE(copy(file("").get()).find("empty"), std::string::npos);
    EXPECT_NE(copy(file("x", O_WRONLY).get()).find("cannot be read"), std::string::npos);
    const FileDescriptor large = file("x");
    ASSERT_EQ(ftruncate(large.get(), kMostDocumentBytes + 1), 0);
    EXPECT_NE(copy(large.get()).find("more than"), std::string::npos);
    // A pipe into which nobody writes ends with the request.
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const FileDescriptor out(ends[0]);
    const FileDescriptor in(ends[1]);
    CallControl control;
    std::thread canceler([&control] { control.cancel(); });
    // The limit is set anew at the beginning, so that only canceling ends the wait.
    EXPECT_NE(copyDocument(out.get(), m_document.path(), control), "");
    canceler.join();
}

} // namespace
