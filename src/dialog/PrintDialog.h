// The print dialog's window: what the user does in it, and in which order the queues, the pane and the job follow.
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

// What the command line asks of the dialog.
struct PrintDialogStart
{
    QString queue;                         // to choose; empty: the source's default one
    std::optional<PrintDictionary> ticket; // to start from on that queue, in place of what is remembered
    QStringList documents;
};

class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    // Source, sink, loader and remembered tickets must outlive the dialog; the plug-in is loaded.
    PrintDialog(QueueSource &source, JobSink &sink, PanelLoader &loader, RememberedTickets &remembered,
                PrintDialogStart start);
    ~PrintDialog() override;

    // True once any queue could be opened. False at the end means that there was nothing to print to.
    bool hadPrinter() const { return m_hadPrinter; }
    // Why Print is greyed, as shown; empty when it is not.
    QString printReason() const;
    // What the print server said, as shown; empty when all is well.
    QString messageText() const;
    const PrintDialogLayout &parts() const { return *m_parts; }

signals:
    // The chosen queue is shown, with its pane or the reason why it has none; or there is no queue to show.
    void ready();
    // A job was taken; the note says where it went, where there is more to say. The dialog closes right after.
    void printed(const QString &note);

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

public slots:
    // Does nothing while a job is on its way: it would leave open whether the job was printed.
    void reject() override;

private:
    void connectParts();
    using Step = void (PrintDialog::*)();
    // Runs a step after what the window says has been painted, in place of a step that is still waiting.
    void afterPaint(Step step, int milliseconds = 0);

    // The steps to a shown queue; each may wait for the network, and each is a turn of the event loop of its own.
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
    QueueRoom *m_current = nullptr; // one of m_rooms; null: none is chosen
    std::unique_ptr<PaneSurvey> m_survey;
    QTimer m_stepTimer;
    Step m_step = nullptr; // what comes when the timer fires
    QString m_noQueue;     // why there is no current queue, once that is known
    QString m_openFailure; // why the current queue cannot be opened
    bool m_begun = false;
    bool m_busy = false;
    bool m_sending = false;
    bool m_hadPrinter = false;
};

} // namespace bv
