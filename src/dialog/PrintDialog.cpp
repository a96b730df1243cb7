// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog's behavior. Any step that may wait for the network runs after the window has announced it and was painted.
#include "dialog/PrintDialog.h"

#include "dialog/JobRows.h"
#include "dialog/PaneSurvey.h"
#include "dialog/PrintDialogLayout.h"
#include "dialog/QueueList.h"
#include "dialog/QueueRoom.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PanelLoader.h"
#include "widgets/DocumentList.h"
#include "widgets/MessageBar.h"
#include "widgets/ReasonLabel.h"
#include "widgets/SummaryView.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

namespace bv {

namespace {

// A user who steps through the queue list by keys must stop on a queue this long before it is opened.
constexpr int kRestMilliseconds = 200;

// Wide enough for pane and summary side by side, if the screen is.
QSize startSize()
{
    constexpr QSize kRoomy(1200, 680);
    constexpr QSize kFrame(16, 48); // space for the window frame
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? kRoomy.boundedTo(screen->availableSize() - kFrame) : kRoomy;
}

} // namespace

PrintDialog::PrintDialog(QueueSource &source, JobSink &sink, PanelLoader &loader, RememberedTickets &remembered,
                         PrintDialogStart start)
    : m_source(source), m_sink(sink), m_loader(loader), m_remembered(remembered), m_start(std::move(start)),
      m_parts(new PrintDialogLayout(this))
{
    setObjectName(QStringLiteral("printDialog"));
    setWindowTitle(tr("Print"));
    setAcceptDrops(true);
    setSizeGripEnabled(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_parts);
    m_stepTimer.setSingleShot(true);
    connectParts();
    resize(startSize());

    m_parts->documents->addDocuments(m_start.documents);
    m_parts->queues->setQueues({});
    m_parts->showQueue(nullptr, nullptr, QString(), tr("Looking for printers…"));
    m_parts->summary->showNote(QString());
    setBusy(true);
    // Without documents, adding some is the first thing to do. Otherwise the user can press Print at once.
    if (m_parts->documents->documents().isEmpty())
        m_parts->documents->addButton()->setFocus();
    else
        m_parts->job->copies()->setFocus();
}

PrintDialog::~PrintDialog()
{
    setBusy(false);
    m_survey.reset();
    // Panels must take their views out of the window before it is destroyed.
    m_current = nullptr;
    m_rooms.clear();
}

void PrintDialog::connectParts()
{
    connect(m_parts->queues, &QueueList::queueChosen, this, &PrintDialog::chooseQueue);
    connect(&m_stepTimer, &QTimer::timeout, this, [this] {
        repaint();
        const Step step = m_step;
        (this->*step)();
    });
    connect(m_parts->documents, &DocumentList::documentsChanged, this, &PrintDialog::updateReadiness);
    connect(m_parts->documents, &DocumentList::refused, this, &PrintDialog::say);
    connect(m_parts->job, &JobRows::changed, this, &PrintDialog::updateReadiness);
    connect(m_parts->restore, &QPushButton::clicked, this, &PrintDialog::restoreDefaults);
    connect(m_parts->print, &QPushButton::clicked, this, &PrintDialog::print);
}

QString PrintDialog::printReason() const
{
    return m_parts->reason->text();
}

QString PrintDialog::messageText() const
{
    return m_parts->message->text();
}

void PrintDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    if (m_begun)
        return;
    m_begun = true;
    afterPaint(&PrintDialog::listQueues);
}

void PrintDialog::afterPaint(Step step, int milliseconds)
{
    m_step = step;
    m_stepTimer.start(milliseconds);
}

void PrintDialog::listQueues()
{
    const Result<std::vector<PrintQueue>> queues = m_source.queues();
    m_survey.reset();
    m_current = nullptr;
    m_rooms.clear();
    m_parts->queues->setQueues(queues ? queues.value() : std::vector<PrintQueue>());
    if (queues) {
        for (const PrintQueue &queue : queues.value())
            m_rooms.push_back(std::make_unique<QueueRoom>(queue));
    }
    m_noQueue =
        queues ? tr("There is no printer. Add one in the system's printer settings, then look again.") : queues.error();
    if (m_rooms.empty()) {
        m_parts->message->say(MessageBar::Kind::Problem, m_noQueue, tr("Look &Again"), [this] {
            setBusy(true);
            m_parts->showQueue(nullptr, nullptr, QString(), tr("Looking for printers…"));
            afterPaint(&PrintDialog::listQueues);
        });
        showCurrent();
        return;
    }
    const auto wanted = std::find_if(m_rooms.begin(), m_rooms.end(), [this](const auto &one) {
        return m_start.queue.isEmpty() ? one->queue().isDefault : one->queue().name == m_start.queue;
    });
    if (wanted == m_rooms.end() && !m_start.queue.isEmpty()) {
        m_noQueue = tr("There is no printer “%1”. Choose one from the list.").arg(m_start.queue);
        say(m_noQueue);
        showCurrent();
        return;
    }
    m_current = wanted == m_rooms.end() ? m_rooms.front().get() : wanted->get();
    m_parts->queues->choose(m_current->queue().name);
    m_parts->showQueue(nullptr, nullptr, QString(),
                       tr("The options of “%1” are being prepared…").arg(queueTitle(m_current->queue())));
    updateReadiness();
    afterPaint(&PrintDialog::openQueue);
}

void PrintDialog::chooseQueue(const QString &queue)
{
    QueueRoom *chosen = room(queue);
    if (!chosen || chosen == m_current)
        return;
    if (m_sending) {
        m_parts->queues->choose(m_current->queue().name);
        return;
    }
    if (m_current && m_current->state() == QueueRoom::State::Ready) {
        const QString problem = m_current->leave() ? m_current->saveValues() : tr("The choices are not complete yet.");
        if (!problem.isEmpty()) {
            m_parts->queues->choose(m_current->queue().name);
            say(problem);
            return;
        }
    }
    m_parts->message->clear();
    m_openFailure.clear();
    m_current = chosen;
    setBusy(true);
    m_parts->showQueue(nullptr, nullptr, QString(),
                       tr("The options of “%1” are being prepared…").arg(queueTitle(chosen->queue())));
    m_parts->summary->showNote(QString());
    if (chosen->state() == QueueRoom::State::Ready)
        showCurrent();
    else
        afterPaint(&PrintDialog::openQueue, kRestMilliseconds);
}

QueueRoom *PrintDialog::room(const QString &queue)
{
    const auto found =
        std::find_if(m_rooms.begin(), m_rooms.end(), [&queue](const auto &one) { return one->queue().name == queue; });
    return found == m_rooms.end() ? nullptr : found->get();
}

void PrintDialog::openQueue()
{
    if (!m_current || m_current->state() != QueueRoom::State::Listed) {
        afterPaint(&PrintDialog::preparePane);
        return;
    }
    std::optional<PrintDictionary> ticket = m_remembered.load(m_current->queue().name);
    // The given ticket belongs to the first queue. Keep its name, so that another try at opening it uses the ticket
    // too.
    if (m_start.queue.isEmpty())
        m_start.queue = m_current->queue().name;
    if (m_start.ticket && m_current->queue().name == m_start.queue) {
        ticket = m_start.ticket;
        removeJobOnlyKeys(&*ticket);
    }
    m_openFailure = m_current->open(m_source, ticket);
    if (!m_openFailure.isEmpty()) {
        m_parts->queues->markWithoutPane(m_current->queue().name, m_openFailure);
        m_parts->message->say(MessageBar::Kind::Problem, m_openFailure, tr("Try &Again"), [this] {
            setBusy(true);
            m_openFailure.clear();
            afterPaint(&PrintDialog::openQueue);
        });
        showCurrent();
        return;
    }
    m_hadPrinter = true;
    connect(m_current->rows(), &PpdOptionRows::choiceMade, this,
            [this, opened = m_current](const QString &keyword, const QString &choice) {
                opened->choiceMade(keyword, choice);
                if (opened == m_current)
                    refreshSummary();
            });
    connect(m_current, &QueueRoom::panelChanged, this, [this, opened = m_current] {
        if (opened == m_current)
            refreshSummary();
    });
    m_parts->showQueue(m_current->rows(), nullptr, QString(), m_parts->placeText());
    afterPaint(&PrintDialog::preparePane);
}

void PrintDialog::preparePane()
{
    if (!m_current || m_current->state() == QueueRoom::State::Listed)
        return;
    if (m_current->state() == QueueRoom::State::Opened) {
        m_current->preparePane(m_loader);
        if (!m_current->noPaneReason().isEmpty())
            m_parts->queues->markWithoutPane(m_current->queue().name, m_current->noPaneReason());
        if (!m_current->paneWarning().isEmpty())
            m_parts->message->say(MessageBar::Kind::Note, m_current->paneWarning());
    }
    showCurrent();
}

void PrintDialog::showCurrent()
{
    setBusy(false);
    if (!m_current) {
        m_parts->showQueue(nullptr, nullptr, QString(), m_noQueue);
    } else if (m_current->state() != QueueRoom::State::Ready) {
        m_parts->showQueue(m_current->rows(), nullptr, QString(), m_openFailure);
    } else {
        m_current->enter();
        m_parts->showQueue(m_current->rows(), m_current->pane(), m_current->paneName(), m_current->noPaneReason());
        if (m_current->queue().isStopped && messageText().isEmpty())
            m_parts->message->say(MessageBar::Kind::Note,
                                  tr("This printer is stopped. You can print all the same: it keeps the job and prints "
                                     "it once it is resumed."));
        surveyOthers();
    }
    refreshSummary();
    updateReadiness();
    emit ready();
}

void PrintDialog::surveyOthers()
{
    if (m_survey || m_current->paneKeys().isEmpty() || m_rooms.size() < 2)
        return;
    QStringList others;
    for (const auto &one : m_rooms) {
        if (one->state() == QueueRoom::State::Listed)
            others << one->queue().name;
    }
    m_survey = std::make_unique<PaneSurvey>(m_source, others, m_current->paneKeys());
    connect(m_survey.get(), &PaneSurvey::withoutPane, this, [this](const QString &queue, const QString &error) {
        const QueueRoom *found = room(queue);
        if (found)
            m_parts->queues->markWithoutPane(queue,
                                             error.isEmpty() ? noPaneSentence(queueTitle(found->queue())) : error);
    });
    m_survey->start();
}

void PrintDialog::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QGuiApplication::restoreOverrideCursor();
    updateReadiness();
}

void PrintDialog::say(const QString &problem)
{
    m_parts->message->say(MessageBar::Kind::Problem, problem);
}

void PrintDialog::refreshSummary()
{
    if (m_current && m_current->state() == QueueRoom::State::Ready)
        m_current->updateConflicts();
    if (m_current && m_current->pane())
        m_parts->summary->showSummary(m_current->summary());
    else
        m_parts->summary->showNote(m_current && !m_busy ? tr("There are no color options to sum up.") : QString());
}

void PrintDialog::updateReadiness()
{
    m_parts->reason->explain(reasonNotToPrint());
    m_parts->restore->setEnabled(!m_busy && m_current && m_current->state() == QueueRoom::State::Ready);
}

QString PrintDialog::reasonNotToPrint() const
{
    if (m_sending)
        return tr("The job is being sent…");
    if (m_busy)
        return tr("The printer's options are being prepared…");
    if (!m_current)
        return tr("Choose a printer first.");
    if (!m_openFailure.isEmpty() || m_current->state() != QueueRoom::State::Ready)
        return tr("This printer cannot be used. Choose another one.");
    if (!m_current->queue().acceptsJobs)
        return tr("This printer takes no jobs at the moment. Choose another one, or ask who looks after it.");
    if (m_parts->documents->documents().isEmpty())
        return tr("Add a document to print.");
    return m_parts->job->problem();
}

void PrintDialog::restoreDefaults()
{
    if (!m_current)
        return;
    m_current->restoreDefaults();
    refreshSummary();
}

void PrintDialog::print()
{
    updateReadiness();
    if (!m_parts->print->isEnabled())
        return;
    m_parts->message->clear();
    m_sending = true;
    setBusy(true);
    updateReadiness();
    afterPaint(&PrintDialog::send);
}

void PrintDialog::send()
{
    const auto sent = m_current->leave()
                          ? m_current->print(m_sink, m_parts->documents->documents(), m_parts->job->options())
                          : Result<PrintedJob>::failure(tr("The choices are not complete yet."));
    m_sending = false;
    setBusy(false);
    updateReadiness();
    if (!sent) {
        m_current->enter();
        refreshSummary();
        say(sent.error());
        m_parts->print->setFocus();
        return;
    }
    m_remembered.store(m_current->queue().name, m_current->ticket());
    emit printed(m_sink.sentNote());
    accept();
}

void PrintDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (DocumentList::canTake(*event->mimeData()))
        event->acceptProposedAction();
}

void PrintDialog::dropEvent(QDropEvent *event)
{
    m_parts->documents->addDropped(*event->mimeData());
    event->acceptProposedAction();
}

void PrintDialog::reject()
{
    if (!m_sending)
        QDialog::reject();
}

} // namespace bv
