// SPDX-License-Identifier: GPL-2.0-or-later
// The steps for one queue: opening, preparing the pane, printing.
#include "dialog/QueueRoom.h"

#include "queues/PanelLoader.h"

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

QString QueueRoom::open(QueueSource &source, const std::optional<PrintDictionary> &ticket)
{
    Result<PpdFile> panelPpd = source.ppd(m_queue.name);
    if (!panelPpd)
        return panelPpd.error();
    // The rows need a PPD of their own: they mark choices to find conflicts, and the panel must not see these marks.
    Result<PpdFile> rowsPpd = source.ppd(m_queue.name);
    if (!rowsPpd)
        return rowsPpd.error();
    m_rowsPpd.emplace(std::move(rowsPpd.value()));
    m_session = std::make_unique<QueueSession>(QueueIdentity{m_queue.name, m_queue.deviceUri, source.hasPrinter()},
                                               std::move(panelPpd.value()));
    if (ticket)
        m_session->ticket().replace(*ticket);
    m_rows = new PpdOptionRows(m_rowsPpd->handle());
    m_rows->readFrom(m_session->printSettings());
    m_state = State::Opened;
    return {};
}

void QueueRoom::preparePane(PanelLoader &loader)
{
    m_state = State::Ready;
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
    m_paneWarning = holder->prepare();
    if (!holder->area()) {
        m_noPaneReason = m_paneWarning;
        m_paneWarning.clear();
        return;
    }
    m_holder = std::move(holder);
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

PrintDictionary QueueRoom::summary()
{
    return m_holder ? m_holder->panel().summaryInfo() : PrintDictionary();
}

void QueueRoom::updateConflicts()
{
    if (!m_rows || !m_rows->hasConstraints())
        return;
    // A refusal is ignored here. Before printing the panel is asked again, and then it counts.
    if (m_holder)
        m_holder->panel().saveValuesAndReturnError(nullptr);
    m_rows->updateConflicts(m_session->printSettings());
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
    m_rows->restoreDefaults();
    if (m_holder)
        m_holder->panel().restoreValuesAndReturnError(nullptr);
    updateConflicts();
}

Result<PrintedJob> QueueRoom::print(JobSink &sink, const QStringList &documents, const JobOptions &extra)
{
    m_rows->writeTo(m_session->printSettings());
    return printDocuments(*m_session, m_holder ? &m_holder->panel() : nullptr, sink, documents, extra);
}

} // namespace bv
