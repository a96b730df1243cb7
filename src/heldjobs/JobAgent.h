// SPDX-License-Identifier: GPL-2.0-or-later
// Watches for new jobs of the user that wait on the print server, and opens the dialog for each, one after another.
#pragma once

#include "heldjobs/WaitingJobs.h"
#include "queues/BackgroundCall.h"

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <set>

namespace bv {

class JobAgent : public QObject
{
    Q_OBJECT

public:
    // `program` opens the dialog when it is started with "--job NUMBER". Looks at once, and then again and again; the
    // print server has no call that waits for news (it answers Get-Notifications at once, also with "notify-wait").
    explicit JobAgent(QString program, std::chrono::milliseconds interval = std::chrono::seconds(2));
    // The window that is open stays.
    ~JobAgent() override;

signals:
    // The print server was asked, and its answer dealt with.
    void looked(bool hasAnswered);

private:
    void look();
    void take(const Result<std::vector<WaitingJob>> &jobs);
    void openNext();

    QString m_program;
    std::chrono::milliseconds m_interval;
    QTimer m_timer;
    BackgroundCall<Result<std::vector<WaitingJob>>> m_listing;
    bool m_hasBegun = false;       // false until the first answer: jobs that wait then are not new
    std::set<WaitingJob> m_known;  // all that wait, but for those that are to be opened
    std::deque<WaitingJob> m_next; // to be opened, in this order
    QProcess *m_window;
};

} // namespace bv
