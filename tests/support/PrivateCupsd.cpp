// SPDX-License-Identifier: GPL-2.0-or-later
// Starts and stops the private print server.
#include "support/PrivateCupsd.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <cstring>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace bvtest {

namespace {

constexpr char kStockFilters[] = "/usr/lib/cups/filter";

constexpr char kFolder[] = "/bvcups.XXXXXX";

constexpr int kPatience = 30000; // milliseconds; enough for a busy machine

// A backend that stores its arguments (each followed by a NUL) and its input.
constexpr char kBackend[] = R"(#!/bin/sh
[ $# = 0 ] && { echo 'direct rec:/x "Rec" "Rec"'; exit 0; }
o=${DEVICE_URI#rec:}/job-$1; printf '%s\0' "$@" > "$o.argv"
if [ -n "$6" ]; then cat "$6"; else cat; fi > "$o.tmp" && mv "$o.tmp" "$o.data"
)";

constexpr char kCopyingFilter[] = R"(#!/bin/sh
if [ -n "$6" ]; then cat "$6"; else cat; fi
)";

constexpr char kConfiguration[] = R"(Listen %1/sock
LogLevel debug
MaxLogSize 0
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
)";

constexpr char kFiles[] = R"(ServerRoot %1/etc
ServerBin %1/bin
DataDir /usr/share/cups
StateDir %1/run
CacheDir %1/cache
RequestRoot %1/spool
TempDir %1/spool/tmp
DocumentRoot %1
AccessLog %1/log/access_log
ErrorLog %1/log/error_log
PageLog %1/log/page_log
User %2
Group %3
SystemGroup %4
Sandboxing relaxed
FatalErrors none
SyncOnClose No
)";

// The folder for scratch files if a print server can work below it, otherwise /tmp: the path of a socket is short and
// stands in a URI, and as root the server's own user must get there.
QByteArray scratchBase()
{
    const QByteArray base = QDir::tempPath().toLocal8Bit();
    const bool plain = std::all_of(base.begin(), base.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || std::strchr("/._-", c);
    });
    bool passable =
        base.startsWith('/') && base.size() + sizeof(kFolder) + sizeof("sock") <= sizeof(sockaddr_un::sun_path);
    for (QByteArray folder = base; passable && folder.size() > 1; folder.truncate(folder.lastIndexOf('/'))) {
        struct stat status = {};
        passable = stat(folder.constData(), &status) == 0 && (getuid() != 0 || (status.st_mode & S_IXOTH) != 0);
    }
    return plain && passable ? base : QByteArray("/tmp");
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Waits until the file exists.
bool waitFor(const QString &path)
{
    QElapsedTimer timer;
    timer.start();
    while (!QFile::exists(path)) {
        if (timer.elapsed() > kPatience)
            return false;
        QThread::msleep(5);
    }
    return true;
}

std::map<QString, QString> parseOptions(const QByteArray &text)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &options);
    std::map<QString, QString> parsed;
    for (int i = 0; i < count; ++i)
        parsed[QString::fromUtf8(options[i].name)] = QString::fromUtf8(options[i].value);
    cupsFreeOptions(count, options);
    return parsed;
}

} // namespace

PrivateCupsd::PrivateCupsd()
{
    QByteArray pattern = scratchBase() + kFolder;
    if (mkdtemp(pattern.data())) {
        m_folder = QString::fromLatin1(pattern);
        chmod(pattern.constData(), 0755);
    }
}

PrivateCupsd::~PrivateCupsd()
{
    stop();
    if (!m_folder.isEmpty())
        QDir(m_folder).removeRecursively();
}

bool PrivateCupsd::writeFiles()
{
    const QDir folder(m_folder);
    for (const char *name : {"etc/ppd", "spool/tmp", "cache", "run/certs", "log", "bin/backend", "bin/filter", "out"})
        if (!folder.mkpath(QLatin1String(name)))
            return false;
    for (const char *name : {"daemon", "monitor", "notifier"})
        QFile::link(QStringLiteral("/usr/lib/cups/%1").arg(QLatin1String(name)),
                    folder.filePath(QStringLiteral("bin/%1").arg(QLatin1String(name))));
    if (!write(folder.filePath(QStringLiteral("bin/backend/rec")), kBackend) ||
        !write(folder.filePath(QStringLiteral("bin/filter/copy")), kCopyingFilter))
        return false;
    if (m_useFilters) {
        for (const QFileInfo &filter : QDir(QString::fromLatin1(kStockFilters)).entryInfoList(QDir::Files))
            QFile::link(filter.absoluteFilePath(), folder.filePath(QStringLiteral("bin/filter/") + filter.fileName()));
        // Copied, because the server's user may have no access to the build folder.
        const QString ours = folder.filePath(QStringLiteral("bin/filter/bvql70"));
        QFile::remove(ours);
        if (!QFile::copy(QStringLiteral(BV_BUILD_DIR "/bin/bvql70"), ours))
            return false;
        chmod(ours.toLocal8Bit().constData(), 0755);
    }
    // cupsd refuses a backend or folder that others may write, so the modes must not depend on the umask.
    for (const char *name : {"bin", "bin/backend", "bin/backend/rec", "bin/filter", "bin/filter/copy"})
        chmod(folder.filePath(QLatin1String(name)).toLocal8Bit().constData(), 0755);

    const group *ownGroup = getgrgid(getgid());
    const passwd *ownUser = getpwuid(getuid());
    QString user = ownUser ? QString::fromLocal8Bit(ownUser->pw_name) : QString();
    QString group = ownGroup ? QString::fromLocal8Bit(ownGroup->gr_name) : QString();
    const QString systemGroup = group;
    if (getuid() == 0) {
        const passwd *lp = getpwnam("lp");
        if (!lp || chown(folder.filePath(QStringLiteral("out")).toLocal8Bit().constData(), lp->pw_uid, lp->pw_gid) != 0)
            return false;
        user = group = QStringLiteral("lp");
    }
    QString configuration = QString::fromLatin1(kConfiguration).arg(m_folder);
    if (m_port != 0)
        configuration.prepend(QStringLiteral("Listen %1\n").arg(portAddress()));
    return write(folder.filePath(QStringLiteral("etc/cupsd.conf")), configuration.toUtf8()) &&
           write(folder.filePath(QStringLiteral("etc/cups-files.conf")),
                 QString::fromLatin1(kFiles).arg(m_folder, user, group, systemGroup).toUtf8());
}

bool PrivateCupsd::useFilters()
{
    m_useFilters = true;
    return QFile::exists(QLatin1String(kStockFilters) + QStringLiteral("/pstops")) &&
           QFile::exists(QLatin1String(kStockFilters) + QStringLiteral("/pdftopdf"));
}

void PrivateCupsd::listenOnPort()
{
    const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in any{};
    any.sin_family = AF_INET;
    any.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(any);
    if (bind(probe, reinterpret_cast<const sockaddr *>(&any), length) == 0 &&
        getsockname(probe, reinterpret_cast<sockaddr *>(&any), &length) == 0)
        m_port = ntohs(any.sin_port);
    close(probe);
}

void PrivateCupsd::useHere(const QString &home) const
{
    const QByteArray server = m_port != 0 ? portAddress().toUtf8() : address().toUtf8();
    qputenv("CUPS_SERVER", server);
    qputenv("HOME", home.toUtf8());
    cupsSetServer(server.constData());
}

QString PrivateCupsd::start()
{
    if (m_folder.isEmpty() || !writeFiles())
        return QStringLiteral("The folder %1 cannot be set up.").arg(m_folder);
    // Copied, because a security policy for cupsd goes by the path of the program.
    const QString program = m_folder + QStringLiteral("/cupsd");
    if (!QFile::exists(program) && !QFile::copy(QStringLiteral("/usr/sbin/cupsd"), program))
        return QStringLiteral("/usr/sbin/cupsd cannot be copied; is the package cups-daemon there?");
    chmod(program.toLocal8Bit().constData(), 0755);
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.start(program, {QStringLiteral("-f"), QStringLiteral("-c"), m_folder + QStringLiteral("/etc/cupsd.conf"),
                             QStringLiteral("-s"), m_folder + QStringLiteral("/etc/cups-files.conf")});
    if (!m_server.waitForStarted(kPatience) || !waitFor(address()))
        return QStringLiteral("The print server does not come up: %1").arg(QString::fromUtf8(m_server.readAll()));
    return {};
}

void PrivateCupsd::stop()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    goOn();
    m_server.terminate();
    if (!m_server.waitForFinished(kPatience)) {
        m_server.kill();
        m_server.waitForFinished(kPatience);
    }
}

void PrivateCupsd::pause()
{
    kill(static_cast<pid_t>(m_server.processId()), SIGSTOP);
}

void PrivateCupsd::goOn()
{
    kill(static_cast<pid_t>(m_server.processId()), SIGCONT);
}

bool PrivateCupsd::administer(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), address());
    environment.insert(QStringLiteral("HOME"), m_folder);
    // These commands may be in folders that are not in the user's PATH.
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/sbin:/usr/bin:/sbin:/bin"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("/usr/bin/env"), QStringList{program} + arguments);
    return process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool PrivateCupsd::addQueue(const QString &name, const QString &ppd)
{
    QStringList arguments = {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                             QStringLiteral("rec:%1/out").arg(m_folder)};
    if (!ppd.isEmpty())
        arguments << QStringLiteral("-P") << ppd;
    return administer(QStringLiteral("lpadmin"), arguments);
}

QString PrivateCupsd::directPpd(const QString &ppd)
{
    QProcess process;
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral(BV_SOURCE_DIR "/tools/direct-ppd"), ppd});
    const QString path = m_folder + QStringLiteral("/direct.ppd");
    return process.waitForFinished(kPatience) && process.exitCode() == 0 && write(path, process.readAllStandardOutput())
               ? path
               : QString();
}

QString PrivateCupsd::copyingPpd(const QString &ppd)
{
    const QString path = m_folder + QStringLiteral("/copying.ppd");
    return write(path, read(directPpd(ppd)).replace(" 0 -\"", " 0 copy\"")) ? path : QString();
}

RecordedJob PrivateCupsd::recorded(int job)
{
    const QString base = QStringLiteral("%1/out/job-%2").arg(m_folder).arg(job);
    RecordedJob recorded;
    if (!waitFor(base + QStringLiteral(".data")))
        return recorded;
    recorded.data = read(base + QStringLiteral(".data"));
    recorded.arguments = read(base + QStringLiteral(".argv")).split('\0');
    if (recorded.arguments.size() > 4)
        recorded.options = parseOptions(recorded.arguments[4]);
    return recorded;
}

qsizetype PrivateCupsd::recordedCount() const
{
    return QDir(m_folder + QStringLiteral("/out")).entryList({QStringLiteral("*.argv")}).size();
}

std::map<int, ipp_jstate_t> PrivateCupsd::jobStates(const QString &queue)
{
    cups_job_t *jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, queue.toUtf8().constData(), 0, CUPS_WHICHJOBS_ALL);
    std::map<int, ipp_jstate_t> states;
    for (int i = 0; i < count; ++i)
        states[jobs[i].id] = jobs[i].state;
    cupsFreeJobs(count, jobs);
    return states;
}

QString asCarried(const QString &value)
{
    const QString small = value.toLower();
    return small == u"true" || small == u"false" ? small : value;
}

} // namespace bvtest
