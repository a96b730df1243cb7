// SPDX-License-Identifier: GPL-2.0-or-later
// Sends what is agreed on; else decides who shows a dialog, and shows it.
#include "portal/DialogProcess.h"

#include "dialog/PanelHolder.h"
#include "dialog/PrintDialog.h"
#include "jobs/PdfPages.h"
#include "jobs/PrintServerSink.h"
#include "platform/FileDescriptor.h"
#include "platform/Log.h"
#include "portal/ClosingWatch.h"
#include "portal/DialogRequest.h"
#include "portal/JobReceivers.h"
#include "portal/ParentWindow.h"
#include "portal/ProgramSettings.h"
#include "portal/ReceivedDocument.h"
#include "queues/JobOnlyKeys.h"
#include "queues/Locale.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSession.h"
#include "texts/WindowTexts.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace bv {

namespace {

using Response = DialogAnswer::Response;

constexpr size_t kMostInput = size_t(16) * 1024 * 1024;
constexpr int kEndMilliseconds = 2000; // a window of the panel may keep an event loop of its own

std::optional<DialogRequest> readRequest()
{
    QByteArray line;
    char character = 0;
    // Byte by byte: what follows belongs to whoever watches for the end of the input.
    while (size_t(line.size()) < kMostInput && readSome(STDIN_FILENO, {&character, 1}) == 1) {
        line += character;
        if (character == '\n')
            return DialogRequest::fromLine(line);
    }
    return std::nullopt;
}

int answer(const DialogAnswer &answer)
{
    const QByteArray line = answer.toLine();
    return writeAll(STDOUT_FILENO, {line.constData(), size_t(line.size())}) ? 0 : 1;
}

int fail(const QString &sentence)
{
    diagnosticLine("portal: " + sentence.toStdString());
    return answer({});
}

QString jobTitle(const DialogRequest &request)
{
    return request.title.isEmpty() ? QCoreApplication::translate("DialogProcess", "Document") : request.title;
}

// Returns a sentence for the user on a failure.
QString receive(const ReceivedDocument &document, const ClosingWatch *watch)
{
    return waitBeside<QString>(
        watch,
        [path = document.path()](CallControl &control) {
            return copyDocument(DialogRequest::kDocumentDescriptor, path, control);
        },
        QCoreApplication::translate("DialogProcess", "The document does not come to its end."));
}

// Prints a job that the user has agreed on, even if the program is gone meanwhile. Returns a sentence for the user when
// it was not printed.
QString sendAgreed(const DialogRequest &request, const QString &path)
{
    const JobRequest job{request.job->queue, jobTitle(request), {path}, request.job->options};
    QString problem = waitBeside<QString>(
        nullptr, [job](CallControl &) { return checkRange(job.options, job.documents, pdfPages()); },
        QCoreApplication::translate("DialogProcess", "The pages of the document could not be counted in time."));
    if (!problem.isEmpty())
        return problem;
    using Sent = Result<SentJob>;
    const Sent sent = waitBeside<Sent>(
        nullptr, [job](CallControl &control) { return PrintServerSink().submit(job, control); },
        Sent::failure(unconfirmedSentence()));
    return sent.error();
}

// The queue that a request is about, with its PPD.
struct Choice
{
    QString queue;
    PpdText ppd;
};

Result<Choice> findQueue(const QueueSource &source, const QString &wanted, CallControl &control)
{
    using Found = Result<Choice>;
    const Result<std::vector<PrintQueue>> queues = source.queues(control);
    if (!queues || queues.value().empty())
        return Found::failure(queues.error());
    const auto named = std::find_if(queues.value().begin(), queues.value().end(),
                                    [&wanted](const PrintQueue &queue) { return queue.name == wanted; });
    const auto chosen = named != queues.value().end()
                            ? named
                            : std::find_if(queues.value().begin(), queues.value().end(),
                                           [](const PrintQueue &queue) { return queue.isDefault; });
    const QString queue = chosen == queues.value().end() ? queues.value().front().name : chosen->name;
    Result<PpdText> ppd = source.ppd(queue, control);
    return ppd ? Found(Choice{queue, std::move(ppd.value())}) : Found::failure(ppd.error());
}

// Shows the dialog for one request.
class DialogRun
{
public:
    DialogRun(DialogRequest request, ReceivedDocument &document, ClosingWatch &watch)
        : m_request(std::move(request)), m_document(document), m_watch(watch)
    {}

    // `note` says why a job that was agreed on is shown again.
    int run(const QString &note)
    {
        if (const auto loaded = m_loader.load({}, messageLocale()); !loaded)
            return fail(loaded.error());
        if (m_request.job)
            startFromJob(note);
        else if (!startFromProgram())
            return answer({Response::Failed, true, {}, {}, {}});
        if (m_request.hasDocument && !m_request.job) {
            if (const QString problem = receive(m_document, &m_watch); !problem.isEmpty())
                return fail(problem);
        }
        if (m_request.hasDocument)
            m_start.documents = QStringList{m_document.path()};
        // A program that printed and ended does not take its user's job away.
        return m_watch.isClosed() && !m_request.job ? answer({}) : showDialog();
    }

private:
    void startFromJob(const QString &note)
    {
        DialogCaller caller;
        for (const auto &[keyword, value] : m_request.job->options) {
            if (keyword == QLatin1String(kCopiesKey))
                caller.copies = value.toInt();
            else if (keyword == QLatin1String(kPageRangesKey))
                caller.pageRange = value;
            else if (keyword != u"print-color-mode") // follows from another option
                caller.choices.setValue(keyword, PrintValue(value));
        }
        caller.note = note;
        m_start.queue = m_request.job->queue;
        m_start.caller = std::move(caller);
    }

    // False when the desktop's own dialog is to be shown.
    bool startFromProgram()
    {
        using Found = Result<Choice>;
        const QString wanted = m_request.settings.value(QStringLiteral("printer")).toString();
        const Found found = waitBeside<Found>(
            &m_watch, [source = m_source, wanted](CallControl &control) { return findQueue(*source, wanted, control); },
            Found::failure(noAnswerSentence()));
        Result<PpdFile> ppd = found ? PpdFile::open(found.value().ppd) : Result<PpdFile>::failure(found.error());
        ppd_file_t *file = ppd ? ppd.value().handle() : nullptr;
        m_start.caller = callerFrom(m_request.settings, m_request.pageSetup, file);
        m_start.queue = found ? found.value().queue : QString();
        return !m_request.mayHandOver || (ppd && hasPanel(std::move(ppd.value()), m_start.queue));
    }

    bool hasPanel(PpdFile ppd, const QString &queue)
    {
        // Without a printer in the session, the panel asks no device.
        QueueSession session({queue, std::nullopt, false}, std::move(ppd));
        std::unique_ptr<PrintPanel> panel = m_loader.printerPanel(&session);
        return panel && PanelHolder(std::move(panel)).serves(session.ppdFile());
    }

    int showDialog()
    {
        m_start.pageCount = pdfPages();
        m_start.withUserDefaults = true;
        DialogCaller &caller = *m_start.caller;
        caller.title = m_request.title;
        // GTK's mnemonics are underscores.
        caller.acceptText = QString(m_request.acceptLabel).remove(u'_');
        const auto agreed = std::make_shared<AgreeingReceiver>();
        const std::shared_ptr<const JobSink> sink =
            m_request.hasDocument ? std::shared_ptr<const JobSink>(std::make_shared<TitledReceiver>(
                                        std::make_shared<PrintServerSink>(), jobTitle(m_request)))
                                  : agreed;
        RememberedTickets remembered;
        PrintDialog dialog(m_source, sink, m_loader, remembered, m_start);
        setParentWindow(dialog, m_request.parent, m_request.isModal);
        DialogAnswer result;
        result.response = Response::Canceled;
        QObject::connect(&dialog, &PrintDialog::printed, &dialog, [&] {
            result.response = Response::Done;
            if (m_request.hasDocument)
                return;
            const JobRequest job = agreed->job();
            ppd_file_t *ppd = dialog.currentRoom()->ppd();
            result.settings = settingsFor(m_request.settings, job.queue, job.options, ppd);
            result.pageSetup = pageSetupFor(m_request.pageSetup, job.options, ppd);
            result.job = {job.queue, job.options};
        });
        QObject::connect(&m_watch, &ClosingWatch::closed, &dialog, [&dialog, this] {
            dialog.reject();
            QTimer::singleShot(kEndMilliseconds, &dialog, [this] {
                m_document.remove();
                std::_Exit(0);
            });
        });
        QEventLoop loop;
        QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
        dialog.show();
        dialog.activateWindow();
        loop.exec();
        return answer(result);
    }

    DialogRequest m_request;
    ReceivedDocument &m_document;
    ClosingWatch &m_watch;
    PanelLoader m_loader;
    std::shared_ptr<const QueueSource> m_source = makeServerSource();
    PrintDialogStart m_start;
};

bool hasDisplay()
{
    constexpr std::array<const char *, 3> kVariables = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(kVariables.begin(), kVariables.end(),
                       [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); });
}

} // namespace

int runDialogProcess(char *program)
{
    const std::optional<DialogRequest> request = readRequest();
    if (!request)
        return 2;
    QByteArray option("-platform");
    QByteArray platform = platformFor(request->parent);
    std::array<char *, 4> words = {program, option.data(), platform.data(), nullptr};
    int wordCount = platform.isEmpty() ? 1 : 3;
    ReceivedDocument document(jobTitle(*request));
    QString note;
    if (request->job) {
        // Without a window no display is needed.
        const QCoreApplication application(wordCount, words.data());
        if (const QString problem = receive(document, nullptr); !problem.isEmpty())
            return fail(problem);
        note = sendAgreed(*request, document.path());
        if (note.isEmpty())
            return answer({Response::Done, false, {}, {}, {}});
    }
    if (!hasDisplay())
        return fail(QStringLiteral("there is no display for the dialog. %1").arg(note));
    const QApplication application(wordCount, words.data());
    QCoreApplication::setApplicationName(QStringLiteral("bvprint"));
    const WindowTexts texts(messageLocale());
    QGuiApplication::setDesktopFileName(QStringLiteral("vnd.brevane.bvprint"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    ClosingWatch watch;
    return DialogRun(*request, document, watch).run(note);
}

} // namespace bv
