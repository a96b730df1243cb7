// SPDX-License-Identifier: GPL-2.0-or-later
// The print dialog's window: user actions, and the order in which queues, pane and job are handled.
#pragma once

#include "jobs/JobSink.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QDialog>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>

namespace bv {

class PaneSurvey;
class PanelLoader;
class PrintDialogLayout;
class QueueRoom;

// Settings from the command line.
struct PrintDialogStart
{
    QString queue;                         // to choose; empty for the default queue
    std::optional<PrintDictionary> ticket; // replaces the remembered ticket of that queue
    QStringList documents;
};

class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    // All four references must outlive the dialog. The plug-in must be loaded.
    PrintDialog(QueueSource &source, JobSink &sink, PanelLoader &loader, RememberedTickets &remembered,
                PrintDialogStart start);
    ~PrintDialog() override;

    // True once a queue was opened. If it is still false at the end, there was no printer.
    bool hadPrinter() const { return m_hadPrinter; }
    // The reason shown for a greyed Print button. Empty when the button is enabled.
    QString printReason() const;
    // The message shown in the message bar. Empty when there is none.
    QString messageText() const;
    const PrintDialogLayout &parts() const { return *m_parts; }

signals:
    // The chosen queue is shown with its pane or with the reason why it has none, or there is no queue.
    void ready();
    // The job was sent. The note says where it went; it may be empty. The dialog closes right after this.
    void printed(const QString &note);

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

public slots:
    // Closes the dialog. Does nothing while a job is being sent, because nobody would learn whether it was printed.
    void reject() override;

private:
    void connectParts();
    using Step = void (PrintDialog::*)();
    // Runs a step after the window was painted. Replaces a step that is still waiting.
    void afterPaint(Step step, int milliseconds = 0);

    // The steps that lead to a shown queue. Each may wait for the network and runs in its own turn of the event loop.
    void listQueues();
    void openQueue();
    void preparePane();
    void showCurrent();

    void chooseQueue(const QString &queue);
    QueueRoom *room(const QString &queue);
    void setBusy(bool busy);
    void say(const QString &problem);
    void refreshSummary();
    void updateReadiness();
    QString reasonNotToPrint() const;
    void surveyOthers();
    void restoreDefaults();
    void print();
    void send();

    QueueSource &m_source;
    JobSink &m_sink;
    PanelLoader &m_loader;
    RememberedTickets &m_remembered;
    PrintDialogStart m_start;
    PrintDialogLayout *m_parts;

    std::vector<std::unique_ptr<QueueRoom>> m_rooms;
    QueueRoom *m_current = nullptr; // one of m_rooms, or null
    std::unique_ptr<PaneSurvey> m_survey;
    QTimer m_stepTimer;
    Step m_step = nullptr; // runs when the timer fires
    QString m_noQueue;     // why there is no current queue; empty while unknown
    QString m_openFailure; // why the current queue cannot be opened
    bool m_begun = false;
    bool m_busy = false;
    bool m_sending = false;
    bool m_hadPrinter = false;
};

} // namespace bv
