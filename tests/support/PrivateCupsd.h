// SPDX-License-Identifier: GPL-2.0-or-later
// A private print server for a test: a copy of cupsd on a socket in a scratch folder, with a backend that records its
// jobs. Works as root and as an ordinary user. Does not touch the machine's own print server.
#pragma once

#include <QByteArrayList>
#include <QProcess>
#include <QString>
#include <cups/cups.h>
#include <map>

namespace bvtest {

// One job, as the backend got it.
struct RecordedJob
{
    QByteArrayList arguments;           // number, user, title, copies, options[, file] (cupsd's backend(7))
    std::map<QString, QString> options; // the fifth argument, parsed by libcups
    QByteArray data;
};

class PrivateCupsd
{
public:
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    // Also listens on a port of 127.0.0.1, for programs that cannot use a socket. Call it before start().
    void listenOnPort();
    // Uses the machine's print filters and the built bvql70. Call it before start(). False when filters are missing.
    bool useFilters();
    // Starts the server, also once more after stop(). Returns an error text, or empty on success.
    QString start();
    // Ends the server.
    void stop();
    // Stops the server where it stands, so that it takes connections and answers nothing, and lets it go on.
    void pause();
    void goOn();

    // The value of CUPS_SERVER for this server.
    QString address() const { return m_folder + QStringLiteral("/sock"); }
    // The same for programs that cannot use a socket.
    QString portAddress() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    // Makes this process's own libcups calls use the server, with `home` as the user's home folder.
    void useHere(const QString &home) const;
    // Adds a queue with the recording backend, a raw one when `ppd` is empty. False on a failure.
    bool addQueue(const QString &name, const QString &ppd = {});
    // Runs an administration command (cupsdisable, lpadmin …) on this server. False on a failure.
    bool administer(const QString &program, const QStringList &arguments);
    // Makes a copy of a PPD with direct filter lines and returns its path. The server then passes documents on
    // unchanged.
    QString directPpd(const QString &ppd);
    // The same with a filter that copies its input. Without any filter, cupsd gives the backend only the first document
    // of a job. With this one, the backend gets all documents, one after another.
    QString copyingPpd(const QString &ppd);

    // Waits for the job and returns what the backend got.
    RecordedJob recorded(int job);
    // Number of jobs that the backend got.
    qsizetype recordedCount() const;
    // States of all jobs of the queue, by job number. Call useHere() before.
    static std::map<int, ipp_jstate_t> jobStates(const QString &queue);

private:
    bool writeFiles();

    QString m_folder;
    int m_port = 0; // 0: listens on the socket only
    bool m_useFilters = false;
    QProcess m_server;
};

// Converts a value as the print server does: "True" and "False" become lower case.
QString asCarried(const QString &value);

} // namespace bvtest
