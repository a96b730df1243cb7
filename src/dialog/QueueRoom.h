// All that the dialog keeps for one queue while it is open: session and ticket, its own option rows, the panel.
#pragma once

#include "dialog/PanelHolder.h"
#include "dialog/PpdOptionRows.h"
#include "jobs/PrintJob.h"
#include "queues/QueueSession.h"
#include "queues/QueueSource.h"

namespace bv {

class PanelLoader;

class QueueRoom : public QObject
{
    Q_OBJECT

public:
    // What has been done for the queue so far.
    enum class State {
        Listed, // known by name only
        Opened, // session and rows are there
        Ready,  // the pane is there, or it is known why there is none
    };

    explicit QueueRoom(PrintQueue queue);
    // Rows and panel leave the window that they were put in.
    ~QueueRoom() override;

    const PrintQueue &queue() const { return m_queue; }
    State state() const { return m_state; }

    // Fetches the PPD, makes session and rows, and fills the ticket. May wait for the network. Returns a sentence for
    // people on a failure; the room is then as before.
    QString open(QueueSource &source, const std::optional<PrintDictionary> &ticket);
    // Makes the panel and its view. May wait for the network. Never fails: where there is no pane, noPaneReason() says
    // why.
    void preparePane(PanelLoader &loader);

    // The dialog's rows; null before open(). Owned here.
    PpdOptionRows *rows() const { return m_rows; }
    // The area with the panel's view; null where there is none.
    QWidget *pane() const { return m_holder ? m_holder->area() : nullptr; }
    // The panel's own name for itself, localised; empty without a panel.
    QString paneName() const { return m_paneName; }
    // The PPD options that the panel is for; empty without a panel.
    QStringList paneKeys() const { return m_paneKeys; }
    QString noPaneReason() const { return m_noPaneReason; }
    // A sentence about values that the panel did not take; empty when it took all.
    QString paneWarning() const { return m_paneWarning; }

    // Tell the panel that its view comes into sight or leaves it. leave() answers false when the panel refuses.
    void enter();
    bool leave();
    // Has the panel write its values into the ticket; a sentence for people when it cannot.
    QString saveValues();

    // What the panel says of its settings; an empty dictionary without a panel.
    PrintDictionary summary();
    // Has the panel write its choices into the ticket and looks whether they and the rows' go together.
    void updateConflicts();
    // To be called when the user chose something in the rows: looks for conflicts again and tells the panel.
    void choiceMade(const QString &keyword, const QString &choice);
    // Empties the ticket and puts panel and rows on their defaults.
    void restoreDefaults();
    // Sends the documents with the ticket's and the extra options. On a failure nothing is printed, and every choice
    // stays.
    Result<PrintedJob> print(JobSink &sink, const QStringList &documents, const JobOptions &extra);
    // The ticket as it stands.
    const PrintDictionary &ticket() const { return m_session->ticket().entries(); }

signals:
    // A choice of the panel changed; once a turn of the event loop.
    void panelChanged();

private:
    PrintQueue m_queue;
    State m_state = State::Listed;
    QString m_paneName;
    QStringList m_paneKeys;
    QString m_noPaneReason;
    QString m_paneWarning;
    // In this order: the rows go before their PPD, the panel before its session.
    std::optional<PpdFile> m_rowsPpd;
    QPointer<PpdOptionRows> m_rows;
    std::unique_ptr<QueueSession> m_session;
    std::unique_ptr<PanelHolder> m_holder;
};

// Why a panel with these keys has nothing to show for a PPD, in a sentence for people.
QString noPaneSentence(const QString &queueTitle);

} // namespace bv
