// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog's behavior. Any step that may wait for the network runs after the window has announced it and was painted.
#include "dialog/PrintDialog.h"

#include "dialog/DefaultsMenu.h"
#include "dialog/JobRows.h"
#include "dialog/ListFailures.h"
#include "dialog/PreviewBinding.h"
#include "dialog/PrintDialogLayout.h"
#include "dialog/WindowSettings.h"
#include "options/ConflictBar.h"
#include "presets/PresetMenu.h"
#include "preview/PagePreview.h"
#include "printers/PaneSurvey.h"
#include "printers/PrinterState.h"
#include "printers/PrinterWatch.h"
#include "printers/QueueList.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PanelLoader.h"
#include "waiting/DeviceWait.h"
#include "waiting/InputGate.h"
#include "waiting/JobSending.h"
#include "widgets/ClickGuard.h"
#include "widgets/DocumentList.h"
#include "widgets/MessageBar.h"
#include "widgets/Mnemonics.h"
#include "widgets/ReasonLabel.h"
#include "widgets/SendingRow.h"
#include "widgets/SummaryView.h"
#include "widgets/WheelGuard.h"
#include "widgets/WhyGreyed.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

namespace bv {

namespace {

// A user who steps through the queue list by keys must stop on a queue this long before it is opened.
constexpr int kRestMilliseconds = 200;

// Topics of messages. Of each, only the last message stands.
const QString kActionTopic = QStringLiteral("action"); // what became of the user's last action
const QString kDocumentTopic = QStringLiteral("documents");
const QString kStoppedTopic = QStringLiteral("stopped");

// The size of the last time, or wide enough for pane and summary side by side; no larger than the screen.
QSize startSize(bool remembers)
{
    constexpr QSize kRoomy(1200, 800);
    constexpr QSize kFrame(16, 48); // space for the window frame
    const QSize last = remembers ? lastWindowSize() : QSize();
    const QSize wanted = last.isValid() ? last : kRoomy;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? wanted.boundedTo(screen->availableSize() - kFrame) : wanted;
}

} // namespace

PrintDialog::PrintDialog(std::shared_ptr<const QueueSource> source, std::shared_ptr<const JobSink> sink,
                         PanelLoader &loader, RememberedTickets &remembered, PrintDialogStart start)
    : m_source(std::move(source)), m_loader(loader), m_remembered(remembered), m_start(std::move(start)),
      m_parts(new PrintDialogLayout(this)), m_preview(new PreviewBinding(*m_parts, this)), m_gate(new InputGate(this)),
      m_deviceWait(std::make_unique<DeviceWait>(m_parts->wait, m_gate, m_parts->cancel)),
      m_sending(std::make_unique<JobSending>(std::move(sink), m_start.pageCount, m_parts->sending))
{
    setObjectName(QStringLiteral("printDialog"));
    setAcceptDrops(true);
    setSizeGripEnabled(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_parts);
    m_stepTimer.setSingleShot(true);
    m_loader.setPanelWait(m_deviceWait.get());
    m_listFailures = std::make_unique<ListFailures>(m_loader, m_parts->message);
    m_watch = std::make_unique<PrinterWatch>(m_source);
    new WheelGuard(this);
    new ClickGuard(this);
    new Mnemonics(this);
    connectParts();
    resize(startSize(m_start.remembersSize));

    m_parts->documents->addDocuments(m_start.documents);
    updateTitle();
    if (m_start.caller)
        followCaller(*m_start.caller);
    m_parts->queues->showLooking();
    m_parts->showWait(nullptr, tr("Looking for printers…"));
    m_parts->summary->showNote(QString());
    setBusy(true);
    // Without documents, adding some is the first thing to do. Otherwise the user can press Print at once.
    if (m_sending->needsDocuments() && m_parts->documents->documents().isEmpty())
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
    m_loader.setPanelWait(nullptr);
}

void PrintDialog::connectParts()
{
    connect(m_parts->queues, &QueueList::queueChosen, this, &PrintDialog::chooseQueue);
    connect(m_parts->queues->popUp(), &PrinterMenu::opened, m_watch.get(), &PrinterWatch::askNow);
    connect(m_parts->queues->popUp(), &PrinterMenu::opened, this, [this] {
        m_menuWasOpened = true;
        surveyOthers();
    });
    connect(m_watch.get(), &PrinterWatch::changed, this, &PrintDialog::followQueues);
    connect(&m_stepTimer, &QTimer::timeout, this, [this] {
        repaint();
        const Step step = m_step;
        (this->*step)();
    });
    connect(m_parts->documents, &DocumentList::documentsChanged, this, &PrintDialog::updateReadiness);
    connect(m_parts->documents, &DocumentList::documentsChanged, this, &PrintDialog::updateTitle);
    if (m_start.remembersSize)
        connect(this, &QDialog::finished, this, [this] {
            if (!isMaximized() && !isFullScreen())
                rememberWindowSize(size());
        });
    connect(m_parts->documents, &DocumentList::refused, this, [this](const QString &reasons) {
        m_parts->message->say(MessageBar::Kind::Problem, reasons, QString(), {}, kDocumentTopic);
    });
    connect(m_parts->job, &JobRows::changed, this, &PrintDialog::updateReadiness);
    connect(m_parts->restore, &QPushButton::clicked, this, &PrintDialog::restoreDefaults);
    connect(m_parts->defaults, &DefaultsMenu::failed, this, &PrintDialog::say);
    connect(m_parts->defaults, &DefaultsMenu::done, this, &PrintDialog::note);
    connect(m_parts->presets, &PresetMenu::failed, this, &PrintDialog::say);
    connect(m_parts->presets, &PresetMenu::done, this, &PrintDialog::note);
    connect(m_parts->presets, &PresetMenu::used, this, &PrintDialog::refreshSummary);
    m_parts->defaults->setVisible(m_start.withUserDefaults);
    connect(m_parts->conflicts, &ConflictBar::settled, this, &PrintDialog::settle);
    connect(m_parts->print, &QPushButton::clicked, this, &PrintDialog::print);
    connect(m_parts->sending, &SendingRow::stopped, this, &PrintDialog::stopSending);
    connect(m_sending.get(), &JobSending::sent, this, &PrintDialog::finish);
    connect(m_sending.get(), &JobSending::failed, this, &PrintDialog::reportFailure);
    connect(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, m_parts->documents,
            &DocumentList::chooseFiles);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, m_parts->print, &QPushButton::click);
    connect(m_gate, &InputGate::escaped, this, &PrintDialog::reject);
    connect(m_gate, &InputGate::switched, m_parts, &PrintDialogLayout::showDropped);
}

void PrintDialog::followCaller(const DialogCaller &caller)
{
    setAcceptDrops(false);
    m_parts->documents->setFixed(true);
    m_parts->documents->setVisible(m_sending->needsDocuments());
    m_parts->preview->setVisible(m_sending->needsDocuments());
    JobOptions options{{QString::fromLatin1(kCopiesKey), QString::number(caller.copies)}};
    if (!caller.pageRange.isEmpty())
        options[QString::fromLatin1(kPageRangesKey)] = caller.pageRange;
    m_parts->job->setOptions(options);
    if (!caller.title.isEmpty())
        // Qt puts the program's state in place of this mark.
        setWindowTitle(QString(caller.title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    if (!caller.acceptText.isEmpty())
        m_parts->print->setText(QString(caller.acceptText).replace(u'&', QStringLiteral("&&")));
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
    using Queues = Result<std::vector<PrintQueue>>;
    m_listing.start([source = m_source](CallControl &control) { return source->queues(control); },
                    Queues::failure(noAnswerSentence()), [this](const Queues &queues) { takeQueues(queues); });
}

void PrintDialog::takeQueues(const Result<std::vector<PrintQueue>> &queues)
{
    m_survey.reset();
    m_current = nullptr;
    m_rooms.clear();
    m_parts->queues->setQueues(queues ? queues.value() : std::vector<PrintQueue>(), lastPrinters());
    m_watch->start(queues ? queues.value() : std::vector<PrintQueue>());
    if (queues) {
        for (const PrintQueue &queue : queues.value())
            m_rooms.push_back(std::make_unique<QueueRoom>(queue));
    }
    m_noQueue =
        queues ? tr("There is no printer. Add one in the system's printer settings, then look again.") : queues.error();
    if (m_rooms.empty()) {
        m_parts->message->say(MessageBar::Kind::Problem, m_noQueue, tr("Look &Again"), [this] {
            setBusy(true);
            m_parts->queues->showLooking();
            m_parts->showWait(nullptr, tr("Looking for printers…"));
            listQueues();
        });
        showCurrent();
        return;
    }
    const QString name = wantedQueue();
    const auto wanted = std::find_if(m_rooms.begin(), m_rooms.end(), [&name](const auto &one) {
        return name.isEmpty() ? one->queue().isDefault : one->queue().name == name;
    });
    if (wanted == m_rooms.end() && !m_start.queue.isEmpty()) {
        m_noQueue = tr("There is no printer “%1”. Choose one from the list.").arg(m_start.queue);
        say(m_noQueue);
        showCurrent();
        return;
    }
    m_current = wanted == m_rooms.end() ? m_rooms.front().get() : wanted->get();
    m_parts->queues->choose(m_current->queue().name);
    m_parts->showWait(nullptr, nowWaitingFor());
    updateReadiness();
    openQueue();
}

void PrintDialog::chooseQueue(const QString &queue)
{
    QueueRoom *chosen = room(queue);
    if (!chosen || chosen == m_current)
        return;
    if (m_gate->isClosed()) {
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
    m_saidStopped = false;
    m_openFailure.clear();
    m_current = chosen;
    m_opening.cancel();
    setBusy(true);
    m_parts->showWait(nullptr, nowWaitingFor());
    m_parts->summary->showNote(QString());
    if (chosen->state() == QueueRoom::State::Ready)
        showCurrent();
    else
        afterPaint(&PrintDialog::openQueue, kRestMilliseconds);
}

void PrintDialog::followQueues(const std::vector<PrintQueue> &queues)
{
    if (m_rooms.empty()) {
        if (!m_busy && !queues.empty()) {
            m_parts->message->clear();
            takeQueues(queues);
        }
        return;
    }
    const auto listed = [&queues](const QString &name) -> std::optional<PrintQueue> {
        const auto found =
            std::find_if(queues.begin(), queues.end(), [&name](const PrintQueue &one) { return one.name == name; });
        return found == queues.end() ? std::nullopt : std::optional(*found);
    };
    std::vector<PrintQueue> shown = queues;
    for (const auto &one : m_rooms)
        one->follow(listed(one->queue().name));
    if (m_current && m_current->isGone())
        shown.push_back(m_current->queue());
    std::erase_if(m_rooms, [this](const auto &one) { return one->isGone() && one.get() != m_current; });
    for (const PrintQueue &queue : queues)
        if (!room(queue.name))
            m_rooms.push_back(std::make_unique<QueueRoom>(queue));
    m_parts->queues->setQueues(shown, lastPrinters());
    sayStopped();
    updateReadiness();
}

QString PrintDialog::wantedQueue() const
{
    if (!m_start.queue.isEmpty())
        return m_start.queue;
    for (const QString &last : lastPrinters())
        if (std::any_of(m_rooms.begin(), m_rooms.end(), [&last](const auto &one) { return one->queue().name == last; }))
            return last;
    return {};
}

QueueRoom *PrintDialog::room(const QString &queue)
{
    const auto found =
        std::find_if(m_rooms.begin(), m_rooms.end(), [&queue](const auto &one) { return one->queue().name == queue; });
    return found == m_rooms.end() ? nullptr : found->get();
}

QString PrintDialog::instanceOf(const QueueRoom &room) const
{
    return room.queue().name == m_start.queue ? m_start.instance : QString();
}

QString PrintDialog::nowWaitingFor() const
{
    return tr("The options of “%1” are being prepared…").arg(queueTitle(m_current->queue()));
}

void PrintDialog::openQueue()
{
    using Ppds = Result<QueueRoom::Ppds>;
    if (!m_current || m_current->state() != QueueRoom::State::Listed) {
        afterPaint(&PrintDialog::preparePane);
        return;
    }
    m_opening.start([source = m_source, queue = m_current->queue().name](
                        CallControl &control) { return QueueRoom::fetch(*source, queue, control); },
                    Ppds::failure(noAnswerSentence()), [this](Ppds ppds) { takePpds(std::move(ppds)); });
}

void PrintDialog::takePpds(Result<QueueRoom::Ppds> ppds)
{
    m_openFailure = ppds.error();
    if (!m_openFailure.isEmpty()) {
        m_parts->queues->mark(m_current->queue().name, QueueList::Mark::Unusable, m_openFailure);
        m_parts->message->say(MessageBar::Kind::Problem, m_openFailure, tr("Try &Again"), [this] {
            setBusy(true);
            m_openFailure.clear();
            m_parts->showWait(nullptr, nowWaitingFor());
            openQueue();
        });
        showCurrent();
        return;
    }
    m_parts->queues->mark(m_current->queue().name, QueueList::Mark::None);
    // The given ticket belongs to the first queue. Keep its name, so that another try at opening it uses the ticket
    // too.
    if (m_start.queue.isEmpty())
        m_start.queue = m_current->queue().name;
    const StartChoices choices =
        startChoices(m_start, m_remembered, m_current->queue().name, ppds.value().rows.handle());
    if (!choices.note.isEmpty())
        m_parts->message->say(MessageBar::Kind::Note, choices.note);
    m_current->open(std::move(ppds.value()), m_source->hasPrinter(), choices);
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
    m_parts->showWait(m_current->rows(), nowWaitingFor());
    afterPaint(&PrintDialog::preparePane);
}

void PrintDialog::preparePane()
{
    if (!m_current || m_current->state() == QueueRoom::State::Listed)
        return;
    if (m_current->state() == QueueRoom::State::Opened) {
        m_deviceWait->begin(queueTitle(m_current->queue()));
        m_current->preparePane(m_loader);
        m_deviceWait->end();
        m_current->setDevice(m_deviceWait->device());
        if (!isVisible())
            return; // rejected meanwhile
        if (!m_current->noPaneReason().isEmpty())
            m_parts->queues->mark(m_current->queue().name, QueueList::Mark::WithoutPane, m_current->noPaneReason());
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
        m_parts->defaults->setTarget({m_current->queue().name, instanceOf(*m_current)}, queueTitle(m_current->queue()),
                                     [room = m_current] { return room->choices(); });
        m_parts->showQueue(m_current->rows(), m_current->pane(), m_current->paneName(), m_current->noPaneReason());
        offerPresets();
        m_parts->showPaneNote(m_deviceWait->note(m_current->device()));
        sayStopped();
        surveyOthers();
    }
    refreshSummary();
    updateReadiness();
    m_preview->start();
    emit ready();
}

void PrintDialog::offerPresets()
{
    m_parts->presets->setTarget({m_current->queue().name, queueTitle(m_current->queue()),
                                 QString::fromUtf8(m_current->ppd()->nickname), m_current->started(),
                                 m_current->usualChoices(), [room = m_current] { return room->presetChoices(); },
                                 [room = m_current](const PrintDictionary &options, const QString &origin) {
                                     return room->use(options, origin);
                                 },
                                 [this, queue = m_current->queue().name] { return m_remembered.load(queue); }});
    if (m_start.preset.isEmpty() || m_current->queue().name != m_start.queue)
        return;
    m_parts->presets->use(m_start.preset);
    m_start.preset.clear();
}

void PrintDialog::surveyOthers()
{
    // Most people print on the printer that is there already, and never look at the others.
    if (!m_menuWasOpened || m_survey || !m_current || m_current->paneKeys().isEmpty() || m_rooms.size() < 2)
        return;
    std::vector<PrintQueue> others;
    for (const auto &one : m_rooms) {
        if (one->state() == QueueRoom::State::Listed)
            others.push_back(one->queue());
    }
    m_survey = std::make_unique<PaneSurvey>(m_source, others, m_current->paneKeys());
    connect(m_survey.get(), &PaneSurvey::withoutPane, this, [this](const QString &queue, const QString &error) {
        const QueueRoom *found = room(queue);
        if (found && error.isEmpty())
            m_parts->queues->mark(queue, QueueList::Mark::WithoutPane, noPaneSentence(queueTitle(found->queue())));
        else if (found && found->state() == QueueRoom::State::Listed)
            m_parts->queues->mark(queue, QueueList::Mark::Unusable, error);
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
    m_parts->message->say(MessageBar::Kind::Problem, problem, QString(), {}, kActionTopic);
}

void PrintDialog::sayStopped()
{
    const bool isStopped = m_current && m_current->state() == QueueRoom::State::Ready && m_current->queue().isStopped;
    if (!isStopped)
        m_parts->message->drop(kStoppedTopic);
    else if (!m_saidStopped)
        m_parts->message->say(MessageBar::Kind::Note,
                              tr("This printer is stopped. You can print all the same: it keeps the job and prints it "
                                 "once it is resumed."),
                              QString(), {}, kStoppedTopic);
    m_saidStopped = isStopped;
}

void PrintDialog::note(const QString &sentence)
{
    m_parts->message->say(MessageBar::Kind::Note, sentence, QString(), {}, kActionTopic);
}

void PrintDialog::refreshSummary()
{
    if (m_current && m_current->state() == QueueRoom::State::Ready) {
        m_current->updateConflicts();
        if (const Result<PrintDictionary> choices = m_current->presetChoices())
            m_parts->presets->follow(choices.value());
    }
    m_parts->conflicts->showConflicts(m_current ? m_current->conflicts() : std::vector<Conflict>());
    if (m_current && m_current->state() == QueueRoom::State::Ready)
        m_parts->summary->showEntries(m_current->summaryRows());
    else
        m_parts->summary->showNote(QString());
    m_preview->follow(m_current);
    m_parts->why->refresh();
}

void PrintDialog::updateReadiness()
{
    m_parts->reason->explain(reasonNotToPrint());
    const bool isReady = !m_busy && m_current && m_current->state() == QueueRoom::State::Ready;
    m_parts->restore->setEnabled(isReady);
    m_parts->defaults->setEnabled(isReady);
    m_parts->presets->setEnabled(isReady);
    for (QWidget *button : std::initializer_list<QWidget *>{m_parts->restore, m_parts->defaults, m_parts->presets})
        button->setAccessibleDescription(isReady ? button->toolTip() : m_parts->reason->text());
    m_parts->why->refresh();
}

void PrintDialog::updateTitle()
{
    const QStringList documents = m_parts->documents->documents();
    if (documents.isEmpty())
        setWindowTitle(tr("Print"));
    else if (documents.size() == 1)
        // Qt puts the program's state in place of this mark.
        setWindowTitle(tr("Print – %1")
                           .arg(QFileInfo(documents.first())
                                    .fileName()
                                    .simplified()
                                    .replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"))));
    else
        setWindowTitle(tr("Print – %1 documents").arg(QLocale().toString(documents.size())));
}

QString PrintDialog::reasonNotToPrint() const
{
    if (m_sending->isRunning())
        return tr("The job is being sent…");
    if (m_busy)
        return tr("The printer's options are being prepared…");
    if (!m_current)
        return tr("Choose a printer first.");
    if (!m_openFailure.isEmpty() || m_current->state() != QueueRoom::State::Ready)
        return tr("This printer cannot be used. Choose another one.");
    if (m_current->isGone())
        return tr("This printer is no longer there. Choose another one.");
    if (QString closed = whyNoJobs(m_current->queue()); !closed.isEmpty())
        return closed;
    if (m_sending->needsDocuments() && m_parts->documents->documents().isEmpty())
        return tr("Add a document to print.");
    if (QString problem = m_parts->job->problem(); !problem.isEmpty())
        return problem;
    return checkRange(m_parts->job->options(), m_parts->documents->documents(), {});
}

void PrintDialog::restoreDefaults()
{
    if (!m_current)
        return;
    m_current->restoreDefaults();
    m_parts->presets->showDefaults();
    refreshSummary();
}

void PrintDialog::print()
{
    updateReadiness();
    if (!m_parts->print->isEnabled() || !mayPrintConflicts())
        return;
    m_parts->message->clear();
    const QStringList documents = m_parts->documents->documents();
    const JobOptions options = m_parts->job->options();
    m_sending->start(documents, options, [this, documents, options] {
        return m_current->leave() ? m_current->makeJob(documents, options)
                                  : Result<JobRequest>::failure(tr("The choices are not complete yet."));
    });
    setBusy(true);
    m_gate->close({m_parts->sending->stopButton()});
    m_parts->cancel->hide(); // of two buttons that cancel, people would not know which does what
    m_parts->sending->stopButton()->setFocus();
    updateReadiness();
}

bool PrintDialog::mayPrintConflicts()
{
    refreshSummary(); // the last change may not have been looked at yet
    const QString sentences = m_parts->conflicts->text();
    if (sentences.isEmpty() || sentences == m_asked)
        return true;
    QMessageBox question(QMessageBox::Warning, tr("Print"), QString(), QMessageBox::Cancel, this);
    question.setObjectName(QStringLiteral("conflictQuestion"));
    question.setTextFormat(Qt::PlainText);
    question.setText(
        tr("Some choices do not go together, and the printer would not follow all of them:\n\n%1\n\nCancel, "
           "and settle it by the buttons above Print, or print all the same.")
            .arg(sentences));
    const QPushButton *print = question.addButton(tr("Print &Anyway"), QMessageBox::AcceptRole);
    question.setDefaultButton(QMessageBox::Cancel);
    question.exec();
    if (question.clickedButton() != print)
        return false;
    m_asked = sentences;
    return true;
}

void PrintDialog::settle(const QString &keyword, const QString &choice)
{
    m_current->choose(keyword, choice);
    refreshSummary();
    const QList<QWidget *> &further = m_parts->conflicts->buttons();
    (further.isEmpty() ? m_parts->print : further.front())->setFocus();
}

void PrintDialog::stopSending()
{
    say(tr("The job is being canceled…"));
    m_sending->stop();
    endSending();
}

void PrintDialog::endSending()
{
    if (!m_gate->isClosed())
        return;
    m_gate->open();
    m_parts->cancel->show();
    setBusy(false);
    updateReadiness();
    m_current->enter();
    refreshSummary();
    m_parts->print->setFocus();
}

void PrintDialog::finish(const SentJob &job)
{
    // The choices of an instance stand in the user's defaults, and those of the queue stay as they are.
    if (instanceOf(*m_current).isEmpty() && !m_start.jobOptions)
        m_remembered.store(m_current->queue().name, m_current->ticket());
    rememberPrinter(m_current->queue().name);
    emit printed(job.note);
    accept();
}

void PrintDialog::reportFailure(const QString &sentence)
{
    endSending();
    say(sentence);
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
    m_listing.cancel();
    m_opening.cancel();
    m_deviceWait->giveUp();
    m_sending->disconnect(this);
    if (m_sending->isRunning())
        m_sending->stop();
    m_gate->open();
    QDialog::reject();
}

} // namespace bv
