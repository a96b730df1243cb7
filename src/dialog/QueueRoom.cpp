// SPDX-License-Identifier: GPL-2.0-or-later
// The steps for one queue: opening, preparing the pane, printing.
#include "dialog/QueueRoom.h"

#include "options/PaneOptions.h"
#include "presets/Preset.h"
#include "queues/PanelLoader.h"
#include "queues/TicketJson.h"

#include <algorithm>
#include <iterator>

namespace bv {

QString noPaneSentence(const QString &queueTitle)
{
    return QueueRoom::tr("“%1” has no color options: its driver does not offer any that this dialog knows. You can "
                         "print with its other settings.")
        .arg(queueTitle);
}

QueueRoom::QueueRoom(PrintQueue queue) : m_queue(std::move(queue)) {}

QueueRoom::~QueueRoom()
{
    m_holder.reset();
    delete m_rows;
}

void QueueRoom::follow(const std::optional<PrintQueue> &queue)
{
    m_isGone = !queue;
    if (queue)
        m_queue = *queue;
}

Result<QueueRoom::Ppds> QueueRoom::fetch(const QueueSource &source, const QString &queue, CallControl &control)
{
    using Fetched = Result<Ppds>;
    const Result<PpdText> text = source.ppd(queue, control);
    if (!text)
        return Fetched::failure(text.error());
    // libcups may need a minute for tens of thousands of options. The server has nothing to do with that.
    constexpr std::chrono::minutes kReadingLimit{10};
    control.allow(kReadingLimit);
    Result<PpdFile> panel = PpdFile::open(text.value());
    if (!panel)
        return Fetched::failure(panel.error());
    Result<PpdFile> rows = PpdFile::open(text.value());
    if (!rows)
        return Fetched::failure(rows.error());
    return Ppds{std::move(panel.value()), std::move(rows.value())};
}

void QueueRoom::open(Ppds ppds, bool hasPrinter, const StartChoices &choices)
{
    m_rowsPpd.emplace(std::move(ppds.rows));
    m_session = std::make_unique<QueueSession>(QueueIdentity{m_queue.name, m_queue.deviceUri, hasPrinter},
                                               std::move(ppds.panel));
    if (choices.ticket)
        m_session->ticket().replace(*choices.ticket);
    m_forPanel = choices.forPanel;
    m_started = choices.words();
    m_origins = m_session->ticket().entries();
    m_originSentence = choices.sentence();
    m_rows = new PpdOptionRows(m_rowsPpd->handle());
    m_rows->readFrom(m_session->printSettings());
    m_state = State::Opened;
}

void QueueRoom::preparePane(PanelLoader &loader)
{
    m_state = State::Ready;
    makePane(loader);
    m_rows->offerFurther(m_holder ? m_paneKeys : QStringList(), queueTitle(m_queue), m_session->printSettings());
}

void QueueRoom::makePane(PanelLoader &loader)
{
    std::unique_ptr<PrintPanel> panel = loader.printerPanel(m_session.get());
    if (!panel) {
        m_noPaneReason = tr("“%1” has no color options: the plug-in offers none. Install it anew to have them.")
                             .arg(queueTitle(m_queue));
        return;
    }
    auto holder = std::make_unique<PanelHolder>(std::move(panel));
    m_paneKeys = holder->panel().supportedPPDOptionKeys();
    if (!holder->serves(m_session->ppdFile())) {
        m_noPaneReason = noPaneSentence(queueTitle(m_queue));
        return;
    }
    // First with an empty ticket, to learn what the defaults look like; the ticket object stays the same.
    const PrintDictionary chosen = m_session->ticket().entries();
    m_session->ticket().clear();
    m_paneWarning = holder->prepare();
    if (holder->area()) {
        m_defaultSummary = holder->panel().summaryInfo();
        if (holder->panel().saveValuesAndReturnError(nullptr))
            m_defaultChoices = presetOptions(m_session->ticket().entries());
        m_session->ticket().clear();
    }
    if (!chosen.entries.empty()) {
        m_session->ticket().replace(chosen);
        if (holder->area())
            m_paneWarning = holder->restoreValues();
    }
    if (!holder->area()) {
        m_noPaneReason = m_paneWarning;
        m_paneWarning.clear();
        return;
    }
    m_holder = std::move(holder);
    giveChoicesToPanel();
    m_paneName = m_holder->panel().panelName();
    connect(m_holder.get(), &PanelHolder::changed, this, &QueueRoom::panelChanged);
}

void QueueRoom::enter()
{
    if (m_holder)
        m_holder->panel().willShow();
}

bool QueueRoom::leave()
{
    return !m_holder || m_holder->panel().shouldHide();
}

QString QueueRoom::saveValues()
{
    QString error;
    if (m_holder && !m_holder->panel().saveValuesAndReturnError(&error))
        return error.isEmpty() ? tr("The choices of “%1” could not be kept.").arg(queueTitle(m_queue)) : error;
    return {};
}

// A panel keeps its choices in dictionaries of its own within the ticket. Once it has made them, the defaults of its
// options are put there, and it reads them.
void QueueRoom::giveChoicesToPanel()
{
    PrintPanel &panel = m_holder->panel();
    if (m_forPanel.entries.empty() || !panel.saveValuesAndReturnError(nullptr))
        return;
    putIntoNested(m_session->ticket().entries(), m_forPanel, m_paneKeys);
    panel.restoreValuesAndReturnError(nullptr);
}

Result<UserDefaults::Options> QueueRoom::choices()
{
    m_rows->writeTo(m_session->printSettings());
    if (const QString problem = saveValues(); !problem.isEmpty())
        return Result<UserDefaults::Options>::failure(problem);
    return defaultsFromTicket(ticket());
}

Result<PrintDictionary> QueueRoom::presetChoices()
{
    m_rows->writeTo(m_session->printSettings());
    if (const QString problem = saveValues(); !problem.isEmpty())
        return Result<PrintDictionary>::failure(problem);
    return presetOptions(ticket());
}

PresetOutcome QueueRoom::use(const PrintDictionary &options, const QString &origin)
{
    m_origins = options;
    m_originSentence = origin;
    m_rows->writeTo(m_session->printSettings());
    PresetOutcome outcome = useChoices(*m_session, m_holder ? &m_holder->panel() : nullptr, options);
    m_rows->readFrom(m_session->printSettings());
    // The panel may show a part of its view that only the old choices made available.
    enter();
    return outcome;
}

JobOptions QueueRoom::options()
{
    // A refusal is ignored: before printing the panel is asked again, and then it counts.
    if (m_holder)
        m_holder->panel().saveValuesAndReturnError(nullptr);
    Ticket choices;
    choices.replace(m_session->ticket().entries());
    m_rows->writeTo(&choices);
    return jobOptions(choices.entries(), m_session->ppdFile());
}

std::vector<SummaryEntry> QueueRoom::summaryRows()
{
    std::vector<SummaryEntry> rows = m_rows->summary();
    if (!m_holder)
        return rows;
    std::vector<SummaryEntry> ofPanel =
        summaryEntries(m_holder->panel().summaryInfo(), m_defaultSummary, summaryHints(pane()));
    std::move(ofPanel.begin(), ofPanel.end(), std::back_inserter(rows));
    return rows;
}

PrintDictionary QueueRoom::usualChoices() const
{
    PrintDictionary choices = m_defaultChoices;
    for (const auto &[key, value] : m_rows->defaults().entries)
        choices.setValue(key, value);
    return choices;
}

void QueueRoom::updateConflicts()
{
    if (!m_rows)
        return;
    // A refusal is ignored here. Before printing the panel is asked again, and then it counts.
    if (m_holder)
        m_holder->panel().saveValuesAndReturnError(nullptr);
    m_rows->findConflicts(m_session->printSettings(), overrulingChoices(pane()));
    const std::map<QString, QString> notes = conflictsByOption(m_rows->conflicts());
    const std::map<QString, QString> origins = originNotes();
    m_rows->explain(notes, origins);
    explainPane(pane(), notes, origins);
}

std::map<QString, QString> QueueRoom::originNotes() const
{
    std::map<QString, QString> notes;
    const ConflictFinder::Choices shown = m_rows->choices();
    for (const ppd_option_t *option = ppdFirstOption(m_rowsPpd->handle()); option;
         option = ppdNextOption(m_rowsPpd->handle())) {
        const QString keyword = QString::fromUtf8(option->keyword);
        const auto row = shown.find(keyword);
        const PrintValue ofTicket = row == shown.end() ? ticket().value(keyword) : PrintValue(row->second);
        const PrintValue before = m_origins.value(keyword);
        // OPTIONCustom says that something else than a choice of the PPD counts.
        const PrintValue custom = ticket().value(keyword + QStringLiteral("Custom"));
        if (!ofTicket.string() || (custom.string() && *custom.string() == u"True"))
            continue;
        if (*ofTicket.string() == QString::fromUtf8(option->defchoice))
            notes[keyword] = tr("The printer's default.");
        else if (before.string() && *before.string() == *ofTicket.string())
            notes[keyword] = m_originSentence;
    }
    return notes;
}

void QueueRoom::choose(const QString &keyword, const QString &choice)
{
    if (m_rows->choose(keyword, choice) || !m_holder)
        return;
    PrintDictionary wanted;
    wanted.setValue(keyword, choice);
    // Something else than a choice of the PPD would go before it.
    if (const QString custom = keyword + QStringLiteral("Custom"); ticket().contains(custom))
        wanted.setValue(custom, PrintValue("False"));
    chooseInPane(wanted);
}

void QueueRoom::chooseInPane(const PrintDictionary &entries)
{
    if (!m_holder)
        return;
    PrintPanel &panel = m_holder->panel();
    panel.saveValuesAndReturnError(nullptr);
    for (const auto &[key, value] : entries.entries)
        m_session->ticket().setValue(key, value);
    putIntoNested(m_session->ticket().entries(), entries, m_paneKeys);
    panel.restoreValuesAndReturnError(nullptr);
    // What is on screen may count no more.
    if (showsOverruledControls(pane()))
        enter();
}

void QueueRoom::choiceMade(const QString &keyword, const QString &choice)
{
    updateConflicts();
    if (m_holder)
        m_holder->panel().PPDOptionKeyValueDidChange(keyword, choice);
}

void QueueRoom::restoreDefaults()
{
    if (!m_session)
        return;
    m_session->ticket().clear();
    m_origins = {};
    m_rows->restoreDefaults();
    if (m_holder) {
        m_holder->panel().restoreValuesAndReturnError(nullptr);
        // The panel may show a part of its view that only the old choices made available.
        m_holder->panel().willShow();
    }
    updateConflicts();
}

Result<JobRequest> QueueRoom::makeJob(const QStringList &documents, const JobOptions &extra)
{
    m_rows->writeTo(m_session->printSettings());
    PrintPanel *panel = m_holder ? &m_holder->panel() : nullptr;
    PrintDictionary choices;
    Result<JobRequest> job = prepareJob(*m_session, panel, documents, extra, &choices);
    if (panel && toJson(ticket()) != toJson(choices)) {
        m_session->ticket().replace(choices);
        panel->restoreValuesAndReturnError(nullptr);
    }
    return job;
}

} // namespace bv
