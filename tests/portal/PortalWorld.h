// SPDX-License-Identifier: GPL-2.0-or-later
// Fixture of the tests with the built bvportal: a message bus of its own that starts it, a print server of its own, and
// a desktop's back end that answers what the test says.
#pragma once

#include "portal/BackendNames.h"
#include "support/PrivateCupsd.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace bvtest {

// The desktop's own back end, in the test's process.
class DesktopsOwn : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public:
    explicit DesktopsOwn(QObject *parent) : QDBusAbstractAdaptor(parent) {}

    QList<QDBusMessage> calls;
    QVariantMap results;
    bool isSlow = false; // does not answer

public slots:
    uint PreparePrint(const QDBusObjectPath &, const QString &, const QString &, const QString &, const QVariantMap &,
                      const QVariantMap &, const QVariantMap &, const QDBusMessage &message, QVariantMap &answer)
    {
        return take(message, answer);
    }
    uint Print(const QDBusObjectPath &, const QString &, const QString &, const QString &,
               const QDBusUnixFileDescriptor &, const QVariantMap &, const QDBusMessage &message, QVariantMap &answer)
    {
        return take(message, answer);
    }

private:
    uint take(const QDBusMessage &message, QVariantMap &answer)
    {
        calls << message;
        message.setDelayedReply(isSlow);
        answer = results;
        return 0;
    }
};

// The same back end's requests.
class DesktopsRequest : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    explicit DesktopsRequest(QObject *parent) : QDBusAbstractAdaptor(parent) {}
    int closed = 0;

public slots:
    void Close() { ++closed; }
};

class PortalWorld : public ::testing::Test
{
protected:
    static constexpr int kPatience = 30000; // milliseconds
    static constexpr char kDesktopsName[] = "org.freedesktop.impl.portal.desktop.test";

    void TearDown() override
    {
        // The service ends without its bus.
        QDBusConnection::disconnectFromBus(QStringLiteral("portal test"));
        m_bus.terminate();
        m_bus.waitForFinished();
        const bool isGone = QTest::qWaitFor([this] { return !QFile::exists(m_process); }, kPatience);
        EXPECT_TRUE(m_process.isEmpty() || isGone) << "bvportal stays";
    }

    // Starts the print server with a queue that has the panel and one that has not, and the bus. `platform` is the
    // dialogs' window system.
    void start(const QByteArray &platform, bool withFilters = false)
    {
        if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty())
            GTEST_SKIP() << "needs the package dbus-daemon";
        if (withFilters && !m_server.useFilters())
            GTEST_SKIP() << "needs the package cups-filters";
        ASSERT_EQ(m_server.start().toStdString(), "");
        const QString ours = QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd");
        ASSERT_TRUE(m_server.addQueue("QL70", withFilters ? ours : m_server.copyingPpd(ours)));
        ASSERT_TRUE(m_server.addQueue("Plain", m_server.copyingPpd(BV_SOURCE_DIR "/tests/support/small.ppd")));
        m_server.useHere(m_folder.path());
        ASSERT_TRUE(m_server.administer("lpadmin", {"-d", "QL70"}));

        write("data/dbus-1/services/org.freedesktop.impl.portal.desktop.bvprint.service",
              "[D-BUS Service]\nName=org.freedesktop.impl.portal.desktop.bvprint\nExec=\"" BV_BUILD_DIR
              "/bin/bvportal\" --service 1\n");
        write("portals/test.portal", "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.test\n"
                                     "Interfaces=org.freedesktop.impl.portal.Print;\nUseIn=test\n");
        QFile::copy(QStringLiteral(BV_SOURCE_DIR "/resources/portal/vnd.brevane.bvprint.portal"),
                    m_folder.filePath("portals/vnd.brevane.bvprint.portal"));
        environment.insert("HOME", m_folder.path());
        environment.insert("XDG_DATA_HOME", m_folder.filePath("data"));
        environment.insert("XDG_STATE_HOME", m_folder.filePath("state"));
        environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        environment.insert("XDG_DESKTOP_PORTAL_DIR", m_folder.filePath("portals"));
        environment.insert("XDG_CURRENT_DESKTOP", "test");
        environment.insert("BVCO_ROOT", m_folder.filePath("root"));
        environment.insert("BVCO_LOG", "stderr");
        environment.insert("CUPS_SERVER", m_server.address());
        environment.insert("QT_QPA_PLATFORM", QString::fromLatin1(platform));
        environment.insert("NO_AT_BRIDGE", "1");
    }

    void startBus()
    {
        m_bus.setProcessEnvironment(environment);
        m_bus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        ASSERT_TRUE(m_bus.waitForReadyRead(kPatience));
        m_address = QString::fromUtf8(m_bus.readLine()).trimmed();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", m_address);
        QDBusConnection bus = connection();
        ASSERT_TRUE(bus.isConnected());
        ASSERT_TRUE(bus.registerService(QLatin1String(kDesktopsName)));
        ASSERT_TRUE(bus.registerObject(QLatin1String(bv::kBackendPath), &m_desktopsObject));
    }

    QDBusConnection connection(const QString &name = QStringLiteral("portal test"))
    {
        const QDBusConnection known(name);
        return known.isConnected() ? known : QDBusConnection::connectToBus(m_address, name);
    }

    static QString handle(const QString &client, const QString &last)
    {
        return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(client, last);
    }

    // Calls the back end as the portal does.
    QDBusPendingCall prepare(const QString &last, const QVariantMap &settings, const QString &app = "org.app",
                             const QVariantMap &options = {}, const QString &parent = {})
    {
        return call("PreparePrint", {QVariant::fromValue(QDBusObjectPath(handle("1_9", last))), app, parent, "A title",
                                     settings, QVariantMap{{"Width", 210.0}, {"Height", 297.0}}, options});
    }
    QDBusPendingCall print(const QString &last, int descriptor, const QVariantMap &options = {},
                           const QString &app = "org.app", const QString &title = "My job")
    {
        return call("Print", {QVariant::fromValue(QDBusObjectPath(handle("1_9", last))), app, "", title,
                              QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)), options});
    }
    QDBusPendingCall call(const QString &method, const QVariantList &arguments, const QString &from = "portal test")
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QLatin1String(bv::kBackendName), QLatin1String(bv::kBackendPath),
                                           QLatin1String(bv::kPrintInterface), method);
        message.setArguments(arguments);
        QDBusPendingCall pending = connection(from).asyncCall(message, 10 * kPatience);
        noteService();
        return pending;
    }
    void close(const QString &last, const QString &from = "portal test")
    {
        connection(from).asyncCall(QDBusMessage::createMethodCall(QLatin1String(bv::kBackendName), handle("1_9", last),
                                                                  QLatin1String(bv::kRequestInterface), "Close"));
    }

    // Waits for the answer; its response, or 99.
    static uint response(const QDBusPendingCall &call)
    {
        const bool isThere = QTest::qWaitFor([&call] { return call.isFinished(); }, kPatience);
        const QDBusMessage reply = isThere ? call.reply() : QDBusMessage();
        EXPECT_EQ(reply.errorMessage().toStdString(), "");
        return reply.arguments().size() == 2 ? reply.arguments()[0].toUInt() : 99;
    }
    static QVariantMap results(const QDBusPendingCall &call)
    {
        return call.reply().arguments().size() == 2 ? qdbus_cast<QVariantMap>(call.reply().arguments()[1])
                                                    : QVariantMap();
    }

    // Processes that show a dialog.
    int dialogs() const
    {
        QFile children(m_process + QStringLiteral("/task/%1/children").arg(m_process.section(u'/', -1)));
        return children.open(QIODevice::ReadOnly) ? int(children.readAll().split(' ').size()) - 1 : 0;
    }
    bool waitForDialogs(int wanted)
    {
        return QTest::qWaitFor([&] { return dialogs() == wanted; }, kPatience);
    }
    bool waitForEnd()
    {
        return QTest::qWaitFor(
            [this] { return !connection().interface()->isServiceRegistered(QLatin1String(bv::kBackendName)); },
            kPatience);
    }

    void write(const QString &name, const QByteArray &bytes)
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    std::unique_ptr<QFile> document(const QByteArray &bytes)
    {
        write("document", bytes);
        auto file = std::make_unique<QFile>(m_folder.filePath("document"));
        EXPECT_TRUE(file->open(QIODevice::ReadWrite));
        return file;
    }
    size_t jobs() const { return PrivateCupsd::jobStates("QL70").size() + PrivateCupsd::jobStates("Plain").size(); }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    PrivateCupsd m_server;
    QTemporaryDir m_folder;
    QProcess m_bus;
    QString m_address;
    QString m_process; // the service's folder in /proc
    QObject m_desktopsObject;
    DesktopsOwn *m_desktopsOwn = new DesktopsOwn(&m_desktopsObject);

private:
    void noteService()
    {
        const auto isThere = [this] {
            return connection().interface()->isServiceRegistered(QLatin1String(bv::kBackendName)).value();
        };
        ASSERT_TRUE(QTest::qWaitFor(isThere, kPatience)) << "the bus does not start bvportal";
        m_process = QStringLiteral("/proc/%1")
                        .arg(connection().interface()->servicePid(QLatin1String(bv::kBackendName)).value());
    }
};

} // namespace bvtest
