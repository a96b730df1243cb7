// SPDX-License-Identifier: GPL-2.0-or-later
// Measures how long the window of bvprint stands still at most with each peer that misbehaves: print servers, printers,
// daemons, documents, and crowds of queues and documents; and how long the program takes to end after Cancel. The
// yardstick is a window that nobody disturbs. Prints a table. With words as arguments, measures only these rows.
#include "pages/SampleDocuments.h"
#include "support/HostileServer.h"
#include "support/ListRoot.h"
#include "support/PrivateCupsd.h"

#include "app/CommandLine.h"
#include "app/MessageFilter.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogRunner.h"
#include "platform/FileDescriptor.h"
#include "queues/BackgroundCall.h"
#include "queues/PanelLoader.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

constexpr int kWatchedMilliseconds = 6000; // from the window's first turn of the event loop to Cancel
constexpr int kMostMilliseconds = 60000;   // of the whole program
constexpr char kPpd[] = BV_SOURCE_DIR "/resources/QL70.ppd";
constexpr char kDocument[] = BV_SOURCE_DIR "/resources/demo/sample.pdf";
constexpr char kWindow[] = "--window";     // the first argument of the program that shows the window
constexpr char kPressPrint[] = "BV_PRINT"; // set: it prints as soon as it can
constexpr char kCanceled[] = "canceled";

double millisecondsOf(clockid_t clock)
{
    timespec now = {};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The longest time in which the event loop did not turn, from its first turn on.
class Heart
{
public:
    Heart()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_timer.start(1);
    }
    void beat()
    {
        const double now = millisecondsOf(CLOCK_MONOTONIC);
        const double worked = millisecondsOf(CLOCK_THREAD_CPUTIME_ID);
        if (m_last > 0 && now - m_last > longest) {
            longest = now - m_last;
            computing = worked - m_lastWorked;
        }
        m_last = now;
        m_lastWorked = worked;
    }

    double longest = 0;   // milliseconds
    double computing = 0; // of these, the thread's processor time

private:
    QTimer m_timer;
    double m_last = 0;
    double m_lastWorked = 0;
};

// Shows the window of this command line, cancels it after its time, and tells what was measured.
int showWindow(int milliseconds, const QStringList &words)
{
    const bv::Result<bv::CommandLine> line = bv::parseCommandLine(words);
    bv::PanelLoader loader;
    if (!line || !loader.load(QStringLiteral(BV_PLUGIN), QStringLiteral("en")))
        return EXIT_FAILURE;
    Heart heart;
    const auto dialog = [] {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<bv::PrintDialog *>(window))
                return found;
        return static_cast<bv::PrintDialog *>(nullptr);
    };
    QTimer printing;
    QObject::connect(&printing, &QTimer::timeout, &printing, [&] {
        if (!dialog() || !dialog()->printReason().isEmpty())
            return;
        printing.stop();
        dialog()->findChild<QPushButton *>(QStringLiteral("print"))->click();
    });
    if (qEnvironmentVariableIsSet(kPressPrint))
        printing.start(50);
    QTimer::singleShot(milliseconds, [&] {
        heart.beat();
        std::printf("%s %.0f %.0f\n", kCanceled, heart.longest, heart.computing);
        std::fflush(stdout);
        if (dialog())
            dialog()->reject();
    });
    const int status = bv::runPrintDialog({line.value().session, line.value().documents, {}, {}}, loader);
    if (!bv::detachedThreadsEnded())
        std::_Exit(status);
    return status;
}

// What the windows of all rows share.
struct World
{
    World()
    {
        setenv("SNMPCONFPATH", root.file("snmp").c_str(), 1);
        setenv("SNMP_PERSISTENT_DIR", root.file("snmp").c_str(), 1);
        setenv("HOME", root.folder().c_str(), 1);
        setenv("XDG_STATE_HOME", root.file("state").c_str(), 1);
    }

    // Runs a window with these arguments, and prints its row. Calls `meanwhile` in the middle of its time.
    static void measure(const std::string &peer, const QStringList &words, const std::function<void()> &meanwhile = {},
                        int milliseconds = kWatchedMilliseconds)
    {
        QProcess window;
        window.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        window.start(QCoreApplication::applicationFilePath(),
                     QStringList{QLatin1String(kWindow), QString::number(milliseconds)} + words);
        QElapsedTimer ending;
        if (meanwhile && !window.waitForReadyRead(kWatchedMilliseconds / 2))
            meanwhile();
        const bool canceled = window.waitForReadyRead(kMostMilliseconds);
        const QList<QByteArray> said = window.readAllStandardOutput().simplified().split(' ');
        ending.start();
        if (!canceled || said.size() != 3 || !window.waitForFinished(kMostMilliseconds)) {
            window.kill();
            window.waitForFinished();
            std::printf("| %s | failed | | |\n", peer.c_str());
        } else {
            std::printf("| %s | %s | %s | %lld |\n", peer.c_str(), said[1].constData(), said[2].constData(),
                        ending.elapsed());
        }
        std::fflush(stdout);
    }

    // A window without a print server.
    static QStringList alone(const QStringList &documents)
    {
        return QStringList{QStringLiteral("--ppd"), QLatin1String(kPpd), QStringLiteral("--")} + documents;
    }
    QString write(const QString &name, const QByteArray &content) const
    {
        return QString::fromStdString(root.write(name.toStdString(), content.toStdString()));
    }

    bvtest::ListRoot root;
};

void nobody(World &)
{
    World::measure("nobody", World::alone({QLatin1String(kDocument)}));
}

void silentPrinter(World &world)
{
    // Takes every question and answers none.
    const bv::FileDescriptor printer(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(printer.get(), reinterpret_cast<const sockaddr *>(&address), size) != 0 ||
        getsockname(printer.get(), reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return;
    world.root.write("snmp/snmp.conf", "mibs :\ndefaultPort " + std::to_string(ntohs(address.sin_port)) + "\n");
    World::measure("a printer that is silent",
                   {QStringLiteral("--ppd"), QLatin1String(kPpd), QStringLiteral("--device-uri"),
                    QStringLiteral("lpd://127.0.0.1/q"), QLatin1String(kDocument)});
}

void printServers(World &)
{
    constexpr struct
    {
        const char *behavior;
        const char *name;
    } kServers[] = {
        {"any=closes", "a print server that closes every connection"},
        {"any=silent", "a print server that never answers"},
        {"any=garbage", "a print server that answers with garbage"},
        {"any=dribbles", "a print server that sends one byte a second"},
        {"queues=endless", "a print server whose list of printers does not end"},
        {"queues=deep", "a print server with collections in collections"},
        {"queues=nasty", "a print server with markup in every text"},
        {"ppd=dribbles", "a driver file that comes at one byte a second"},
        {"ppd=huge", "a driver file that does not end"},
        {"attributes=silent", "a print server that tells nothing of its printers"},
        {"queues=some", "200 printers"},
        {"queues=many", "10,000 printers"},
    };
    for (const auto &one : kServers) {
        const bvtest::HostileServer server({one.behavior});
        qputenv("CUPS_SERVER", server.address().toUtf8());
        World::measure(one.name, {QLatin1String(kDocument)});
    }
    for (const char *behavior : {"send=silent", "send=dribbles"}) {
        const bvtest::HostileServer server({behavior});
        qputenv("CUPS_SERVER", server.address().toUtf8());
        qputenv(kPressPrint, "1");
        World::measure(std::string("Print, and the server confirms ") +
                           (behavior[5] == 's' ? "nothing" : "at one byte a second"),
                       {QLatin1String(kDocument)});
        qunsetenv(kPressPrint);
    }
}

// The library that reads driver files takes a time that grows with the square of the number of options.
void manyOptions(World &world)
{
    for (const int count : {2000, 20000}) {
        QByteArray ppd = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*ModelName: \"Many\"\n*NickName: \"Many\"\n";
        for (int i = 0; i < count; ++i) {
            const QByteArray name = "Option" + QByteArray::number(i);
            ppd += "*OpenUI *" + name + ": PickOne\n*Default" + name + ": A\n*" + name + " A: \"\"\n*" + name +
                   " B: \"\"\n*CloseUI: *" + name + "\n";
        }
        const bvtest::HostileServer server({}, world.root.write("many.ppd", ppd.toStdString()));
        qputenv("CUPS_SERVER", server.address().toUtf8());
        World::measure("a driver file with " + std::to_string(count) + " options", {QLatin1String(kDocument)}, {},
                       count < 10000 ? kWatchedMilliseconds : 5 * kWatchedMilliseconds);
    }
}

void stoppedCupsd(World &)
{
    bvtest::PrivateCupsd server;
    if (!server.start().isEmpty() || !server.addQueue(QStringLiteral("QL70"), QString::fromLatin1(kPpd))) {
        std::printf("| a stopped cupsd | not measured: there is no cupsd | | |\n");
        return;
    }
    qputenv("CUPS_SERVER", server.address().toUtf8());
    server.pause();
    World::measure("a cupsd that is stopped", {QLatin1String(kDocument)});
    World::measure("a cupsd that is stopped, and goes on", {QLatin1String(kDocument)}, [&server] { server.goOn(); });
    World::measure("a cupsd that is stopped later", {QLatin1String(kDocument)}, [&server] { server.pause(); });
    server.goOn();
}

// Inside a network namespace, see inNamespace().
void stoppedDaemons(World &)
{
    constexpr struct
    {
        const char *variable;
        const char *name;
    } kDaemons[] = {{"BV_AVAHI_PID", "a stopped avahi-daemon"}, {"BV_BUS_PID", "a stopped message bus"}};
    for (const auto &one : kDaemons) {
        const pid_t daemon = std::atoi(qgetenv(one.variable).constData());
        if (daemon <= 0)
            continue;
        kill(daemon, SIGSTOP);
        World::measure(one.name,
                       {QStringLiteral("--ppd"), QLatin1String(kPpd), QStringLiteral("--device-uri"),
                        QStringLiteral("dnssd://QL70._pdl-datastream._tcp.local./?uuid=1"), QLatin1String(kDocument)});
        kill(daemon, SIGCONT);
    }
}

// Daemons to be stopped exist only in a network namespace, where the machine allows one.
void inNamespace(World &)
{
    QProcess inside;
    inside.setProcessChannelMode(QProcess::ForwardedChannels);
    inside.start(QStringLiteral("sh"), {QStringLiteral(BV_SOURCE_DIR "/tests/support/in_bonjour_namespace.sh"),
                                        QCoreApplication::applicationFilePath(), QStringLiteral("stopped-daemons")});
    inside.waitForFinished(4 * kMostMilliseconds);
}

void manyDocuments(World &world)
{
    QStringList documents;
    documents.reserve(300);
    for (int i = 0; i < 300; ++i)
        documents << world.write(QStringLiteral("document%1.txt").arg(i), "A document.\n");
    World::measure("300 documents", World::alone(documents));
}

void hostileDocuments(World &world)
{
    QStringList all;
    for (const bvtest::HostileDocument &hostile : bvtest::hostileDocuments()) {
        all << world.write(QLatin1String(hostile.name), hostile.content);
        World::measure(std::string("a document: ") + hostile.name, World::alone({all.back()}));
    }
    World::measure("all these documents at once", World::alone(all));
}

struct Row
{
    const char *word;
    void (*measure)(World &world);
    bool alone = true; // measured when all are
};

constexpr Row kRows[] = {
    {"nobody", nobody},
    {"silent-printer", silentPrinter},
    {"daemons", inNamespace},
    {"stopped-daemons", stoppedDaemons, false},
    {"cupsd", stoppedCupsd},
    {"print-servers", printServers},
    {"options", manyOptions},
    {"many-documents", manyDocuments},
    {"documents", hostileDocuments},
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 2 && std::string_view(argv[1]) == kWindow) {
        bv::installMessageFilter();
        int count = 1;
        const QApplication application(count, argv);
        QStringList words;
        for (int i = 3; i < argc; ++i)
            words << QString::fromLocal8Bit(argv[i]);
        const int status = showWindow(std::atoi(argv[2]), words);
        std::fflush(stdout);
        std::_Exit(status);
    }
    const QCoreApplication application(argc, argv);
    const QStringList chosen = QCoreApplication::arguments().mid(1);
    if (chosen != QStringList{QStringLiteral("stopped-daemons")})
        std::printf("| peer | the window stood still, ms | of it computing, ms | end after Cancel, ms |\n"
                    "|---|---|---|---|\n");
    std::fflush(stdout);
    World world;
    for (const Row &row : kRows)
        if (chosen.isEmpty() ? row.alone : chosen.contains(QLatin1String(row.word)))
            row.measure(world);
    return EXIT_SUCCESS;
}
