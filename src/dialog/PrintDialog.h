// SPDX-License-Identifier: GPL-2.0-or-later
// The print dialog's window: user actions, and the order in which queues, pane and job are handled.
#pragma once

#include "dialog/DialogCaller.h"
#include "dialog/QueueRoom.h"
#include "jobs/JobSink.h"
#include "queues/BackgroundCall.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"
#include "queues/UserDefaults.h"

#include <QDialog>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>

namespace bv {

class DeviceWait;
class InputGate;
class JobSending;
class PaneSurvey;
class PrinterWatch;
class PanelLoader;
class ListFailures;
class PreviewBinding;
class PrintDialogLayout;

// Settings from the command line.
struct PrintDialogStart
{
    QString queue;                         // to choose; empty for the default queue
    std::optional<PrintDictionary> ticket; // replaces the remembered ticket of that queue
    QStringList documents;
    PageCount pageCount = {};      // of a document; empty: no page count is known
    QString instance = {};         // of the queue: the set of the user's defaults to start from
    bool withUserDefaults = false; // whether the user's defaults for all programs are read and can be stored
    bool remembersSize = true;     // whether the window opens as large as it was last
    std::optional<UserDefaults::Options> jobOptions = {}; // of a job that exists already: it starts from nothing else,
                                                          // and what is chosen for it is not remembered
    std::optional<DialogCaller> caller = {}; // the program that has the user print; nothing: the user himself
    QString preset = {};                     // of the user's own, to use for that queue; empty: none
};

class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    // The two references must outlive the dialog. The plug-in must be loaded.
    PrintDialog(std::shared_ptr<const QueueSource> source, std::shared_ptr<const JobSink> sink, PanelLoader &loader,
                RememberedTickets &remembered, PrintDialogStart start);
    ~PrintDialog() override;

    // True once a queue was opened. If it is still false at the end, there was no printer.
    bool hadPrinter() const { return m_hadPrinter; }
    // True while the dialog waits for a print server or a panel.
    bool isWaiting() const { return m_busy; }
    // The reason shown for a greyed Print button. Empty when the button is enabled.
    QString printReason() const;
    // The message shown in the message bar. Empty when there is none.
    QString messageText() const;
    const PrintDialogLayout &parts() const { return *m_parts; }
    // The chosen queue; null while there is none.
    const QueueRoom *currentRoom() const { return m_current; }

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
    // Closes the dialog at once, whatever it waits for. A job that is being sent is canceled.
    void reject() override;

private:
    void connectParts();
    void followCaller(const DialogCaller &caller);
    using Step = void (PrintDialog::*)();
    // Runs a step after the window was painted. Replaces a step that is still waiting.
    void afterPaint(Step step, int milliseconds = 0);

    // The steps that lead to a shown queue. What may wait for the network runs in the background; each step that
    // follows runs in its own turn of the event loop.
    void listQueues();
    void takeQueues(const Result<std::vector<PrintQueue>> &queues);
    void openQueue();
    void takePpds(Result<QueueRoom::Ppds> ppds);
    void preparePane();
    void showCurrent();

    void chooseQueue(const QString &queue);
    // Shows the printers as the print server lists them now. The chosen one stays, even if it is gone.
    void followQueues(const std::vector<PrintQueue> &queues);
    QueueRoom *room(const QString &queue);
    void setBusy(bool busy);
    void say(const QString &problem);
    // Says that the chosen printer is stopped, as long as it is.
    void sayStopped();
    void note(const QString &sentence);
    void offerPresets();
    void refreshSummary();
    void updateReadiness();
    void updateTitle();
    // The queue to begin with, a name in the list or not; empty: the default one.
    QString wantedQueue() const;
    QString reasonNotToPrint() const;
    // Looks for printers without color options, once the menu that marks them has been opened.
    void surveyOthers();
    void restoreDefaults();
    void print();
    // False when choices are in conflict and the user does not want to print them so.
    bool mayPrintConflicts();
    void settle(const QString &keyword, const QString &choice);
    void stopSending();
    void endSending();
    void finish(const SentJob &job);
    void reportFailure(const QString &sentence);
    QString nowWaitingFor() const;
    // The instance that the start names, when this is its queue.
    QString instanceOf(const QueueRoom &room) const;

    std::shared_ptr<const QueueSource> m_source;
    PanelLoader &m_loader;
    RememberedTickets &m_remembered;
    PrintDialogStart m_start;
    PrintDialogLayout *m_parts;
    PreviewBinding *m_preview;

    std::vector<std::unique_ptr<QueueRoom>> m_rooms;
    QueueRoom *m_current = nullptr;       // one of m_rooms, or null
    std::unique_ptr<PaneSurvey> m_survey; // null until the menu of printers was opened
    bool m_menuWasOpened = false;
    std::unique_ptr<PrinterWatch> m_watch;
    BackgroundCall<Result<std::vector<PrintQueue>>> m_listing;
    BackgroundCall<Result<QueueRoom::Ppds>> m_opening;
    InputGate *m_gate;
    std::unique_ptr<DeviceWait> m_deviceWait;
    std::unique_ptr<JobSending> m_sending;
    std::unique_ptr<ListFailures> m_listFailures;
    QTimer m_stepTimer;
    Step m_step = nullptr; // runs when the timer fires
    QString m_noQueue;     // why there is no current queue; empty while unknown
    QString m_asked;       // the conflicts that the user was asked about and prints all the same
    QString m_openFailure; // why the current queue cannot be opened
    bool m_begun = false;
    bool m_busy = false;
    bool m_hadPrinter = false;
    bool m_saidStopped = false; // of the chosen printer, and it still is
};

} // namespace bv
