// SPDX-License-Identifier: GPL-2.0-or-later
// A queue's session without a print server, and the choices remembered between runs.
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"
#include "queues/SessionStart.h"
#include "queues/StateFolder.h"
#include "queues/UserDefaults.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using bv::PrintDictionary;
using bv::PrintValue;
using bv::RememberedTickets;
using bv::SessionRequest;

// The window gets its queue from a source, a batch from a session. Both must agree.
TEST(WithoutAServer, TheQueueIsWhatTheRequestSays)
{
    SessionRequest request;
    request.ppd = BV_SOURCE_DIR "/resources/QL70.ppd";
    const auto expectQueue = [&](const char *name, const std::optional<QString> &uri) {
        const auto session = bv::startSession(request);
        const auto source = bv::makePpdSource(request, QString());
        ASSERT_TRUE(session && source);
        EXPECT_EQ(source.value()->hasPrinter(), !request.noPrinter);
        bv::CallControl control;
        const bv::PrintQueue listed = source.value()->queues(control).value().at(0);
        EXPECT_EQ(listed.name, name);
        EXPECT_EQ(listed.deviceUri, uri);
        const bv::Printer *printer = session.value()->currentPrinter();
        ASSERT_EQ(printer != nullptr, !request.noPrinter);
        EXPECT_TRUE(!printer || (printer->identifier() == name && printer->deviceUri() == uri));
    };
    expectQueue("QL70", std::nullopt);
    request.queue = "Lab";
    request.deviceUri = "usb://BREVANE/QL70";
    expectQueue("Lab", request.deviceUri);
    request.noPrinter = true;
    expectQueue("Lab", request.deviceUri);
}

TEST(StateFolder, IsInHomeUnlessTheVariableIsAnAbsolutePath)
{
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    for (const char *set : {"", "state"}) {
        qputenv("XDG_STATE_HOME", set);
        EXPECT_EQ(bv::stateFolder(), QDir::homePath() + "/.local/state");
    }
    qputenv("XDG_STATE_HOME", "/var/state");
    EXPECT_EQ(bv::stateFolder(), "/var/state");
    qputenv("XDG_STATE_HOME", before);
}

TEST(RememberedTickets, KeepEachQueueApartUnderAnyName)
{
    const QTemporaryDir folder;
    const RememberedTickets remembered(folder.filePath("tickets"));
    // clang-format off
    const QStringList names = {
        "QL70", "ql70", "a/b", "..", "a b", "a%2Fb", "Büro", QString(300, 'x'), QString(300, 'x') + "y",
        QString(120, QChar(0x65e5)),
    };
    // clang-format on
    for (qsizetype i = 0; i < names.size(); ++i) {
        PrintDictionary ticket;
        ticket.setValue("Number", PrintValue::integer(i));
        ASSERT_TRUE(remembered.store(names[i], ticket)) << qPrintable(names[i]);
        EXPECT_LT(QFileInfo(remembered.filePath(names[i])).fileName().toUtf8().size(), 256);
        EXPECT_EQ(QFileInfo(remembered.filePath(names[i])).dir(), QDir(folder.filePath("tickets")));
        EXPECT_FALSE(QFileInfo(remembered.filePath(names[i])).isHidden());
    }
    for (qsizetype i = 0; i < names.size(); ++i) {
        const auto ticket = remembered.load(names[i]);
        ASSERT_TRUE(ticket);
        EXPECT_EQ(*ticket->value("Number").integer(), i);
    }
    EXPECT_FALSE(remembered.load("never stored"));
}

TEST(RememberedTickets, LeaveOutTheKeysOfOneJob)
{
    const QTemporaryDir folder;
    const RememberedTickets remembered(folder.path());
    PrintDictionary ticket;
    for (const char *key : {"copies", "Copies", "page-ranges", "PageRanges", "Duplex"})
        ticket.setValue(key, "1");
    remembered.store("Q", ticket);
    EXPECT_EQ(remembered.load("Q")->entries.size(), 1U);
}

TEST(RememberedTickets, PutAnUnreadableFileAside)
{
    const QTemporaryDir folder;
    const RememberedTickets remembered(folder.filePath("tickets"));
    const QString path = remembered.filePath("Q");
    for (const char *content : {"{ no json", "[1]", "", "{\"a\": null}"}) {
        remembered.store("Q", {});
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_FALSE(remembered.load("Q")) << content;
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_TRUE(QFile::exists(path + ".unreadable"));
    }
}

TEST(UserFiles, StayAsTheyWereWhereTheDiskIsFull)
{
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    const QString file = home.filePath(".cups/lpoptions");
    const QByteArray old = "Dest other x=" + QByteArray(3000, 'y') + '\n';
    QString error;
    ASSERT_TRUE(bv::storeFile(file, old, &error)) << error.toStdString();
    {
        const bvtest::FileSizeLimit full(1000);
        EXPECT_FALSE(bv::storeFile(file, QByteArray(3000, 'z'), &error));
        EXPECT_EQ(error, "File too large");
        const bv::UserDefaults defaults(home.filePath("state"));
        EXPECT_TRUE(defaults.store({"Q", {}}, {{"a", "b"}}).endsWith(": File too large."));
    }
    qputenv("HOME", before);
    QFile stored(file);
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    EXPECT_EQ(stored.readAll(), old);
    EXPECT_EQ(QDir(home.filePath(".cups")).entryList(QDir::Files), QStringList("lpoptions"));
}

} // namespace
