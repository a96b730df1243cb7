// SPDX-License-Identifier: GPL-2.0-or-later
// What a screen reader hears of the window: the real accessibility bus and its registry, on a message bus and a display
// of the test's own.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <utility>

namespace bvtest {
namespace {

constexpr int kPatience = 30000; // milliseconds
constexpr char kLauncher[] = "/usr/libexec/at-spi-bus-launcher";
constexpr char kAccessible[] = "org.a11y.atspi.Accessible";
constexpr uint kAlert = 2; // ATSPI_ROLE_ALERT

// Keeps what appears on screen, as a reader does that speaks alerts.
class Listener : public QObject
{
    Q_OBJECT

public:
    struct Shown
    {
        QString program;
        QString path;
    };
    QList<Shown> shown;

public slots:
    void stateChanged(const QDBusMessage &message)
    {
        const QVariantList words = message.arguments();
        if (words.value(0).toString() == u"showing" && words.value(1).toInt() == 1)
            shown.append({message.service(), message.path()});
    }
};

class ScreenReader : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!QFile::exists(QLatin1String(kLauncher)))
            GTEST_SKIP() << "needs the package at-spi2-core";
        for (const char *program : {"Xvfb", "dbus-daemon"})
            if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
                GTEST_SKIP() << "needs the program " << program;
        m_display.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp", "-noreset"});
        ASSERT_TRUE(m_display.waitForReadyRead(kPatience));
        environment.insert("DISPLAY", u':' + QString::fromUtf8(m_display.readLine()).trimmed());
        environment.remove("WAYLAND_DISPLAY");
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("HOME", m_folder.path());
        environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        environment.insert("BVCO_ROOT", m_folder.filePath("root"));
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        environment.insert("CUPS_SERVER", m_folder.filePath("none"));
        start(m_bus, "dbus-daemon",
              {"--session", "--nofork", "--print-address", "--address=unix:path=" + m_folder.filePath("bus")});
        ASSERT_TRUE(m_bus.waitForReadyRead(kPatience));
        const QString address = QString::fromUtf8(m_bus.readLine()).trimmed();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", address);
        start(m_launcher, QLatin1String(kLauncher), {"--launch-immediately"});
        const QDBusConnection session = QDBusConnection::connectToBus(address, "reader's session");
        QDBusReply<QString> accessibility;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                accessibility = session.call(
                    QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
                return accessibility.isValid();
            },
            kPatience));
        bus = QDBusConnection::connectToBus(accessibility.value(), "reader");
        ASSERT_TRUE(bus.isConnected());
        QDBusMessage listen = QDBusMessage::createMethodCall("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                                             "org.a11y.atspi.Registry", "RegisterEvent");
        listen.setArguments({QStringLiteral("object:"), QStringList(), QString()});
        ASSERT_NE(bus.call(listen).type(), QDBusMessage::ErrorMessage);
        ASSERT_TRUE(bus.connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", &listener,
                                SLOT(stateChanged(QDBusMessage))));
    }

    void TearDown() override
    {
        window.terminate();
        window.waitForFinished();
        bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus("reader");
        QDBusConnection::disconnectFromBus("reader's session");
        // The accessibility bus ends with its launcher, and that with the session's bus.
        for (QProcess *program : {&m_bus, &m_launcher, &m_display}) {
            program->terminate();
            if (program->state() != QProcess::NotRunning)
                program->waitForFinished();
        }
    }

    void start(QProcess &program, const QString &path, const QStringList &arguments)
    {
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(path, arguments);
    }

    // The name of a thing that appeared as an alert; empty for anything else.
    QString alertText(const Listener::Shown &shown)
    {
        const auto call = [this, &shown](const char *interface, const char *method, const QVariantList &arguments) {
            QDBusMessage message = QDBusMessage::createMethodCall(shown.program, shown.path, interface, method);
            message.setArguments(arguments);
            return bus.call(message);
        };
        const QDBusReply<uint> role = call(kAccessible, "GetRole", {});
        if (!role.isValid() || role.value() != kAlert)
            return {};
        const QDBusReply<QDBusVariant> name =
            call("org.freedesktop.DBus.Properties", "Get", {QString::fromLatin1(kAccessible), QStringLiteral("Name")});
        return name.value().variant().toString();
    }

    QTemporaryDir m_folder{"/tmp/reader-XXXXXX"};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QDBusConnection bus{QString()};
    Listener listener;
    QProcess window;

private:
    QProcess m_display;
    QProcess m_bus;
    QProcess m_launcher;
};

TEST_F(ScreenReader, HearsAMessageOfTheWindowAsAnAlert)
{
    start(window, QStringLiteral(BV_BUILD_DIR "/bin/bvprint"), {QStringLiteral(BV_SOURCE_DIR "/README.md")});
    QStringList heard;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            for (const Listener::Shown &shown : std::exchange(listener.shown, {}))
                if (const QString text = alertText(shown); !text.isEmpty())
                    heard << text;
            return heard.join(u'\n').contains("print server");
        },
        kPatience))
        << heard.join(u'\n').toStdString() << window.readAll().toStdString();
}

} // namespace
} // namespace bvtest

#include "screen_reader_test.moc"
