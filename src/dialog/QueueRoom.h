// SPDX-License-Identifier: GPL-2.0-or-later
// Everything that the dialog keeps for one queue while it is open: session, ticket, option rows and panel.
#pragma once

#include "dialog/PanelHolder.h"
#include "dialog/StartChoices.h"
#include "jobs/PrintJob.h"
#include "options/PpdOptionRows.h"
#include "presets/PresetUse.h"
#include "queues/QueueSession.h"
#include "queues/QueueSource.h"

namespace bv {

class PanelLoader;

class QueueRoom : public QObject
{
    Q_OBJECT

public:
    // How far the queue has been prepared.
    enum class State {
        Listed, // known by name only
        Opened, // session and rows exist
        Ready,  // the pane exists, or it is known why it does not
    };

    explicit QueueRoom(PrintQueue queue);
    // Removes rows and panel from the window.
    ~QueueRoom() override;

    const PrintQueue &queue() const { return m_queue; }
    // Takes what the print server says of the queue now; nothing when it is gone.
    void follow(const std::optional<PrintQueue> &queue);
    bool isGone() const { return m_isGone; }
    State state() const { return m_state; }

    // The queue's PPD, opened twice: the rows mark choices in theirs to find conflicts, and the panel must not see it.
    struct Ppds
    {
        PpdFile panel;
        PpdFile rows;
    };
    // Fetches and opens them. Called on a background thread. The sentence of a failure is for the user.
    static Result<Ppds> fetch(const QueueSource &source, const QString &queue, CallControl &control);

    // Creates session and rows, and fills the ticket.
    void open(Ppds ppds, bool hasPrinter, const StartChoices &choices);
    // Creates the panel and its view. May wait for the network. Never fails: when there is no pane, noPaneReason() says
    // why.
    void preparePane(PanelLoader &loader);

    // The option rows. Null before open(). Owned by the room.
    PpdOptionRows *rows() const { return m_rows; }
    // The area with the panel's view, or null.
    QWidget *pane() const { return m_holder ? m_holder->area() : nullptr; }
    // The panel's localized name. Empty without a panel.
    QString paneName() const { return m_paneName; }
    // The PPD options that the panel serves. Empty without a panel.
    QStringList paneKeys() const { return m_paneKeys; }
    QString noPaneReason() const { return m_noPaneReason; }
    // A sentence for the user when the panel refused some values, else empty.
    QString paneWarning() const { return m_paneWarning; }

    // The address of the device that the panel asked while it was prepared, or was kept from asking; empty: none.
    void setDevice(const std::string &device) { m_device = device; }
    const std::string &device() const { return m_device; }

    // Tell the panel that its view is about to be shown or hidden. leave() returns false when the panel refuses.
    void enter();
    bool leave();
    // Has the panel write its values into the ticket. Returns a sentence for the user when it cannot.
    QString saveValues();
    // The present choices of rows and panel. A failure is a sentence for the user.
    Result<UserDefaults::Options> choices();
    Result<PrintDictionary> presetChoices();
    // Makes these the choices of rows and panel. `origin` is a sentence that says where they come from; it may be
    // empty. Call it in the state Ready.
    PresetOutcome use(const PrintDictionary &options, const QString &origin);
    // What the choices came from when the queue was opened, in a few words.
    const QString &started() const { return m_started; }

    // All options of a job with the present choices. Call it in the state Ready.
    JobOptions options();
    // For looking up the meaning of an option. Null before open().
    ppd_file_t *ppd() const { return m_session ? m_session->ppdFile() : nullptr; }

    // Rows for the summary: of the dialog's own rows, then of the panel.
    std::vector<SummaryEntry> summaryRows();
    // What presetChoices() gives while every setting is as the printer proposes.
    PrintDictionary usualChoices() const;
    // Has the panel write its choices into the ticket, looks for conflicts, and says at each control what is in
    // conflict and where choices come from.
    void updateConflicts();
    std::vector<Conflict> conflicts() const { return m_rows ? m_rows->conflicts() : std::vector<Conflict>(); }
    // Makes a choice in the rows or in the panel. Both arguments are PPD keywords.
    void choose(const QString &keyword, const QString &choice);
    // Gives entries of the ticket that belong to the panel's options to the panel. Without a panel nothing happens.
    void chooseInPane(const PrintDictionary &entries);
    // Sentences by keyword that say where the present choices come from. Call updateConflicts() before.
    std::map<QString, QString> originNotes() const;
    // Call this when the user made a choice in the rows. Checks for conflicts again and tells the panel.
    void choiceMade(const QString &keyword, const QString &choice);
    // Empties the ticket and sets panel and rows to their defaults.
    void restoreDefaults();
    // Makes a job of the documents with the options of the ticket and the extra ones. What the panel changes for the
    // job is not kept: afterwards ticket and panel hold the user's choices again.
    Result<JobRequest> makeJob(const QStringList &documents, const JobOptions &extra);
    // The current ticket.
    const PrintDictionary &ticket() const { return m_session->ticket().entries(); }

signals:
    // A choice in the panel changed. Sent at most once per turn of the event loop.
    void panelChanged();

private:
    void makePane(PanelLoader &loader);
    void giveChoicesToPanel();

    PrintQueue m_queue;
    PrintDictionary m_forPanel; // what the panel has to be given when it is there
    State m_state = State::Listed;
    bool m_isGone = false;
    QString m_started;
    PrintDictionary m_origins; // the choices that came from somewhere
    QString m_originSentence;  // and from where
    QString m_paneName;
    QStringList m_paneKeys;
    QString m_noPaneReason;
    QString m_paneWarning;
    std::string m_device;
    // Of the panel, while every setting is as the printer proposes.
    PrintDictionary m_defaultSummary;
    PrintDictionary m_defaultChoices;
    // The order matters: members are destroyed from last to first, the panel before its session and the rows before
    // their PPD.
    std::optional<PpdFile> m_rowsPpd;
    QPointer<PpdOptionRows> m_rows;
    std::unique_ptr<QueueSession> m_session;
    std::unique_ptr<PanelHolder> m_holder;
};

// A sentence for the user that says why there is no pane for this queue.
QString noPaneSentence(const QString &queueTitle);

} // namespace bv
