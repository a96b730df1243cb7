// A print server of a test's own: a copy of cupsd on a socket in a scratch folder, with a backend that records the jobs
// it gets. Works as root and as an ordinary user, and meets no print server of the machine.
#pragma once

#include <QByteArrayList>
#include <QProcess>
#include <QString>
#include <cups/cups.h>
#include <map>

namespace bvtest {

// One job as the backend got it.
struct RecordedJob
{
    QByteArrayList arguments;           // number, user, title, copies, options[, file] (cupsd's backend(7))
    std::map<QString, QString> options; // the fifth of them as libcups parses it
    QByteArray data;
};

class PrivateCupsd
{
public:
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    // Has it listen on a port of the loopback address as well, for programs that cannot reach a socket. Before start.
    void listenOnPort();
    // Gives it the machine's print filters and the built bvql70 beside its own. Before start. Whether they are there.
    bool useFilters();
    // Starts the server; a sentence when it does not come up, else empty.
    QString start();
    // Ends it; jobs can be sent no more.
    void stop();

    // The value for CUPS_SERVER.
    QString address() const { return m_folder + QStringLiteral("/sock"); }
    // The same for who cannot reach a socket.
    QString portAddress() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    // Sends this process' own libcups calls to it, on behalf of a user with that home.
    void useHere(const QString &home) const;
    // Adds a queue on the recording backend; without a PPD a raw one. Whether it worked.
    bool addQueue(const QString &name, const QString &ppd = {});
    // Runs one of the commands for administrators (cupsdisable, lpadmin …) on this server. Whether it worked.
    bool administer(const QString &program, const QStringList &arguments);
    // A PPD with direct filter lines made of another, so that the server passes documents on as they are.
    QString directPpd(const QString &ppd);
    // The same with a filter that copies its input. A server hands only the first document of a job to a backend where
    // no filter is in between; with one the backend gets them all, one behind the other.
    QString copyingPpd(const QString &ppd);

    // What the backend got for the job; waits for it to arrive.
    RecordedJob recorded(int job);
    // For how many jobs the backend ran.
    qsizetype recordedCount() const;
    // The jobs that the queue ever had, by number. After useHere.
    static std::map<int, ipp_jstate_t> jobStates(const QString &queue);

private:
    bool writeFiles();

    QString m_folder;
    int m_port = 0; // 0: on the socket alone
    bool m_useFilters = false;
    QProcess m_server;
};

// A value as a print server carries it on: "True" and "False" lose their capitals.
QString asCarried(const QString &value);

} // namespace bvtest
